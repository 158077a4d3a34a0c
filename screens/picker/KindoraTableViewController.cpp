// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/picker/KindoraTableViewController.h"

#include "app/AppColors.h"
#include "app/AppFont.h"
#include "model/FriendSearch.h"
#include "model/Friends.h"
#include "platform/FatalError.h"
#include "screens/picker/FriendTableViewCell.h"
#include "screens/picker/SendAnimation.h"
#include "screens/shared/PassingAlert.h"
#include "screens/shared/PlaceholderTableViewCell.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"

namespace kindora {
namespace {

constexpr std::string_view kFriendCell = "friendCell";
constexpr int kFriendsSection = 0;
constexpr double kSearchBarHeight = 44;
constexpr double kInviteFontSize = 22;
constexpr double kAlertSeconds = 2;

}  // namespace

KindoraTableViewController::KindoraTableViewController() {
  tableView()->registerCell(kFriendCell, FriendTableViewCell::fromPrototype);
  tableView()->registerCell(kPlaceholderCell, PlaceholderTableViewCell::fromPrototype);
}

// --- Life ---

void KindoraTableViewController::viewDidLoad() {
  UITableViewController::viewDidLoad();
  setDefinesPresentationContext(true);
  searchController = std::make_unique<UISearchController>();
  searchController->delegate = this;
  searchController->searchResultsUpdater = this;
  searchController->dimsBackgroundDuringPresentation = false;
  searchController->hidesNavigationBarDuringPresentation = false;
  UISearchBar* bar = searchController->searchBar();
  bar->setFrame({{0, 0}, {view()->bounds().size.width, kSearchBarHeight}});
  bar->setSearchBarStyle(UISearchBarStyle::minimal);
  bar->setBackgroundColor(UIColor::whiteColor().colorWithAlphaComponent(0.95));
  tableView()->setTableHeaderView(bar);

  setTitle(tr("Select Friends"));
  const std::string title = challenge ? challenge->title.value_or("") : "";
  navigationItem()->setPrompt(tr("Passing on \"%1\"...").arg(QString::fromStdString(title)));
  navigationItem()->setRightBarButtonItem(
      std::make_shared<UIBarButtonItem>(tr("Send"), QString(), [this] { sendChallenge(); }));
  sendButton().setEnabled(false);
  refreshData();
  tableView()->reloadData();
}

// A friend may have been invited meanwhile.
void KindoraTableViewController::viewWillAppear(bool animated) {
  UITableViewController::viewWillAppear(animated);
  if (searchController->isActive()) return;
  refreshData();
  tableView()->reloadData();
}

UIBarButtonItem& KindoraTableViewController::sendButton() {
  return *navigationItem()->rightBarButtonItem();
}

void KindoraTableViewController::refreshData() {
  displayFriends = Friends::sharedInstance().friendUsers;
}

// --- Rows ---

int KindoraTableViewController::numberOfSectionsInTableView() { return 2; }

int KindoraTableViewController::tableViewNumberOfRowsInSection(int section) {
  return section == kFriendsSection ? static_cast<int>(displayFriends.size()) : 1;
}

const UserRef& KindoraTableViewController::userForRow(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= displayFriends.size()) {
    fatalError("there is no friend in row " + std::to_string(row));
  }
  return displayFriends[static_cast<std::size_t>(row)];
}

UITableViewCellRef KindoraTableViewController::tableViewCellForRowAtIndexPath(IndexPath path) {
  if (path.section == kFriendsSection) {
    auto cell = std::dynamic_pointer_cast<FriendTableViewCell>(
        tableView()->dequeueReusableCell(kFriendCell));
    const UserRef& user = userForRow(path.row);
    cell->setUser(*user);
    cell->setAccessoryType(chosenFriends.contains(user) ? UITableViewCellAccessoryType::checkmark
                                                        : UITableViewCellAccessoryType::none);
    return cell;
  }
  auto cell = std::dynamic_pointer_cast<PlaceholderTableViewCell>(
      tableView()->dequeueReusableCell(kPlaceholderCell));
  const auto label = connected(cell->messageLabel);
  label->setText(tr("Invite a Friend...").toStdString());
  label->setFont(appFont(kInviteFontSize));
  label->setTextColor(appColor());
  cell->setSelectionStyle(UITableViewCellSelectionStyle::none);
  cell->setAccessoryType(UITableViewCellAccessoryType::none);
  return cell;
}

const void* KindoraTableViewController::tableViewIdentityForRowAtIndexPath(IndexPath path) {
  return path.section == kFriendsSection ? userForRow(path.row).get() : nullptr;
}

// --- Choosing ---

void KindoraTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  if (path.section != kFriendsSection) {
    searchController->setActive(false);
    performSegueWithIdentifier(kInviteFriend);
    return;
  }
  const UserRef user = userForRow(path.row);
  tableView()->deselectRowAtIndexPath(path, true);
  const bool chosen = chosenFriends.erase(user) == 0;
  if (chosen) chosenFriends.insert(user);
  showCheckmark(user, chosen);
  showNumberChosen();
}

// In each row of the friend, who is listed twice after sending two challenges.
void KindoraTableViewController::showCheckmark(const UserRef& user, bool chosen) {
  for (std::size_t row = 0; row < displayFriends.size(); ++row) {
    if (displayFriends[row] != user) continue;
    const auto cell = tableView()->cellForRowAtIndexPath({kFriendsSection, static_cast<int>(row)});
    if (cell) {
      cell->setAccessoryType(chosen ? UITableViewCellAccessoryType::checkmark
                                    : UITableViewCellAccessoryType::none);
    }
  }
}

void KindoraTableViewController::showNumberChosen() {
  const std::size_t number = chosenFriends.size();
  setTitle(number == 0   ? tr("Select Friends")
           : number == 1 ? tr("%1 Friend Selected").arg(number)
                         : tr("%1 Friends Selected").arg(number));
  sendButton().setEnabled(number > 0);
}

// --- Searching ---

void KindoraTableViewController::updateSearchResultsForSearchController(
    UISearchController& controller) {
  displayFriends = usersWithNameContaining(Friends::sharedInstance().friendUsers,
                                           controller.searchBar()->text().toStdString());
  tableView()->reloadData();
}

void KindoraTableViewController::didDismissSearchController(UISearchController& /*controller*/) {
  refreshData();
  tableView()->reloadData();
}

// --- Sending ---

void KindoraTableViewController::sendChallenge() { animateSendChallenge(); }

void KindoraTableViewController::animateSendChallenge() {
  view()->endEditing(true);
  searchController->searchBar()->resignFirstResponder();
  UITabBarController* tabs = tabBarController();
  if (tabs == nullptr) fatalError("the screen is in no tab");
  SendAnimation::run(tabs->view(), challenge ? challenge->challengeImage : nullptr,
                     guarded([this] { alertSendChallenge(); }));
}

void KindoraTableViewController::alertSendChallenge() {
  const QString title = challenge && challenge->title ? QString::fromStdString(*challenge->title)
                                                      : tr("this challenge");
  const std::size_t number = chosenFriends.size();
  presentPassingAlert(
      *this,
      (number == 1 ? tr("Passed on \"%1\" to %2 friend!") : tr("Passed on \"%1\" to %2 friends!"))
          .arg(title, QString::number(number))
          .toStdString(),
      std::nullopt, kAlertSeconds, [this] { didDismissAlert(); });
}

void KindoraTableViewController::didDismissAlert() {
  if (!challenge) fatalError("the screen has no challenge");
  challenge->passedOn = true;
  navigationItem()->setPrompt({});
  if (UINavigationController* navigation = navigationController()) {
    navigation->popViewController(true);
  }
}

}  // namespace kindora
