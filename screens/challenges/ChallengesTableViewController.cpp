// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/challenges/ChallengesTableViewController.h"

#include "app/AppColors.h"
#include "app/AppFont.h"
#include "app/RejectAlert.h"
#include "app/RunAfterDelay.h"
#include "model/ChallengeData.h"
#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "screens/challenges/ChallengeTableViewCell.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "screens/shared/CreateChallengeButton.h"
#include "screens/shared/PlaceholderTableViewCell.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIStoryboard.h"

namespace kindora {
namespace {

constexpr std::string_view kChallengeCell = "challengeCell";
constexpr double kAnnouncementSeconds = 1.25;

}  // namespace

ChallengesTableViewController::ChallengesTableViewController() {
  tableView()->registerCell(kChallengeCell, ChallengeTableViewCell::fromPrototype);
  tableView()->registerCell(kPlaceholderCell, PlaceholderTableViewCell::fromPrototype);
}

// --- Life ---

void ChallengesTableViewController::viewDidLoad() {
  UITableViewController::viewDidLoad();
  if (UINavigationController* navigation = navigationController()) {
    navigation->setBackgroundColor(UIColor::whiteColor());
  }
  navigationItem()->setRightBarButtonItem(createChallengeButton(*this));
  refreshDataWithReload(true, true);
}

void ChallengesTableViewController::viewWillAppear(bool animated) {
  UITableViewController::viewWillAppear(animated);
  refreshDataWithReload(true, false);
}

void ChallengesTableViewController::viewDidAppear(bool animated) {
  UITableViewController::viewDidAppear(animated);
  becomeFirstResponder();
}

void ChallengesTableViewController::viewWillDisappear(bool animated) {
  resignFirstResponder();
  UITableViewController::viewWillDisappear(animated);
}

// --- Data ---

const std::vector<ChallengeRef>& ChallengesTableViewController::getDataForSection(
    int section) const {
  switch (section) {
    case NEW_CHALLENGE_INDEX:
      return newChallenges;
    case IN_PROGRESS_INDEX:
      return inProgress;
    default:
      fatalError("invalid section");
  }
}

const ChallengeRef& ChallengesTableViewController::challengeAt(IndexPath path) const {
  const auto& data = getDataForSection(path.section);
  if (path.row < 0 || path.row >= static_cast<int>(data.size())) fatalError("invalid row");
  return data[static_cast<std::size_t>(path.row)];
}

void ChallengesTableViewController::copyStore() {
  const ChallengeData& store = ChallengeData::sharedInstance();
  inProgress = store.inProgressChallenges;
  newChallenges = store.newChallenges;
}

void ChallengesTableViewController::refreshDataWithReload(bool reload, bool animated) {
  copyStore();
  if (!reload) return;
  if (animated) {
    tableView()->reloadSections({NEW_CHALLENGE_INDEX, IN_PROGRESS_INDEX},
                                UITableViewRowAnimation::automatic);
  } else {
    tableView()->reloadData();
  }
}

// --- Table ---

int ChallengesTableViewController::numberOfSectionsInTableView() { return 2; }

int ChallengesTableViewController::tableViewNumberOfRowsInSection(int section) {
  const auto& data = getDataForSection(section);
  return data.empty() ? 1 : static_cast<int>(data.size());
}

std::string ChallengesTableViewController::tableViewTitleForHeaderInSection(int section) {
  switch (section) {
    case NEW_CHALLENGE_INDEX:
      return tr("New Challenges").toStdString();
    case IN_PROGRESS_INDEX:
      return tr("In Progress").toStdString();
    default:
      fatalError("invalid section");
  }
}

void ChallengesTableViewController::tableViewWillDisplayHeaderViewForSection(
    UITableViewHeaderFooterView& view, int section) {
  static_cast<void>(getDataForSection(section));
  const auto label = connected(view.textLabel);
  label->setTextColor(appColor());
  label->setFont(appFont(16));
  label->setTextAlignment(NSTextAlignment::center);
}

UITableViewCellRef ChallengesTableViewController::tableViewCellForRowAtIndexPath(IndexPath path) {
  const bool isNew = path.section == NEW_CHALLENGE_INDEX;
  if (getDataForSection(path.section).empty()) {
    UITableViewCellRef cell = tableView()->dequeueReusableCell(kPlaceholderCell);
    connected(static_cast<PlaceholderTableViewCell&>(*cell).messageLabel)
        ->setText(
            (isNew ? tr("No New Challenges") : tr("No Challenges in Progress")).toStdString());
    return cell;
  }
  const Challenge& challenge = *challengeAt(path);
  UITableViewCellRef dequeued = tableView()->dequeueReusableCell(kChallengeCell);
  auto& cell = static_cast<ChallengeTableViewCell&>(*dequeued);
  const User* sender = challenge.sender.get();
  if (isNew) {
    cell.setProfileImage(sender != nullptr ? sender->picture : nullptr);
    cell.setMainText(sender != nullptr ? std::optional(sender->name) : std::nullopt);
    cell.setSmallText(std::nullopt);
  } else {
    cell.setProfileImage(challenge.challengeImage);
    cell.setMainText(challenge.title);
    cell.setSmallText(
        sender != nullptr
            ? std::optional(tr("From: %1").arg(QString::fromStdString(sender->name)).toStdString())
            : std::nullopt);
  }
  return dequeued;
}

const void* ChallengesTableViewController::tableViewIdentityForRowAtIndexPath(IndexPath path) {
  return getDataForSection(path.section).empty() ? nullptr : challengeAt(path).get();
}

bool ChallengesTableViewController::tableViewShouldHighlightRowAtIndexPath(IndexPath path) {
  return !getDataForSection(path.section).empty();
}

void ChallengesTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  if (getDataForSection(path.section).empty()) return;
  performSegueWithIdentifier(
      path.section == NEW_CHALLENGE_INDEX ? kShowNewChallenge : kShowInProgressChallenge, path);
}

void ChallengesTableViewController::prepareForSegue(const UIStoryboardSegue& segue,
                                                    const std::any& sender) {
  const auto selected = [&] { return challengeAt(std::any_cast<IndexPath>(sender)); };
  UIViewController& destination = *segue.destinationViewController;
  if (segue.identifier == kShowNewChallenge) {
    dynamic_cast<NewChallengeDetailViewController&>(destination).challenge = selected();
  } else if (segue.identifier == kShowInProgressChallenge) {
    dynamic_cast<InProgressChallengeDetailViewController&>(destination).challenge = selected();
  }
}

// --- Swipe to reject ---

bool ChallengesTableViewController::tableViewCanEditRowAtIndexPath(IndexPath path) {
  return !getDataForSection(path.section).empty() && path.section == IN_PROGRESS_INDEX;
}

std::string
ChallengesTableViewController::tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(
    IndexPath path) {
  static_cast<void>(getDataForSection(path.section));
  return tr("Reject").toStdString();
}

void ChallengesTableViewController::tableViewCommitEditingStyleForRowAtIndexPath(
    UITableViewCellEditingStyle /*style*/, IndexPath path) {
  const ChallengeRef challenge = challengeAt(path);
  const auto reject = [this, challenge, section = path.section] {
    ChallengeData::sharedInstance().removeInProgressChallenge(challenge);
    copyStore();
    tableView()->reloadSections({section}, UITableViewRowAnimation::automatic);
  };
  const auto neverMind = [this] { tableView()->setEditing(false, true); };
  presentViewController(rejectAlertForChallenge(*challenge, guarded(reject), guarded(neverMind)),
                        true);
}

// --- Shake ---

void ChallengesTableViewController::motionEnded(UIEventSubtype motion) {
  if (motion != UIEventSubtype::motionShake) return;
  const ChallengeRef revealed = ChallengeData::sharedInstance().revealHiddenChallenge();
  if (!revealed) return;
  const QString who =
      revealed->sender ? QString::fromStdString(revealed->sender->name) : tr("Someone");
  presentViewController(
      makeViewController<UIAlertController>(tr("New challenge from %1!").arg(who).toStdString(),
                                            std::nullopt, UIAlertControllerStyle::alert),
      true);
  runAfterDelay(kAnnouncementSeconds, *services().mainQueue,
                guarded([this] { dismissViewController(true); }));
  refreshDataWithReload(true, true);
}

}  // namespace kindora
