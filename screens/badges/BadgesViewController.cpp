// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgesViewController.h"

#include "platform/FatalError.h"
#include "screens/badges/BadgeCollectionViewCell.h"
#include "screens/badges/BadgeInfoViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "screens/shared/CreateChallengeButton.h"
#include "screens/shared/SegueIdentifiers.h"
#include "screens/shared/StoryboardIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UITabBar.h"

namespace kindora {

BadgesViewController::BadgesViewController()
    : bouncyFlowLayout(std::make_unique<BelSpringyCollectionViewFlowLayout>()),
      collectionView(std::make_unique<CollectionView>(*bouncyFlowLayout)),
      dataSourceDelegate(std::make_unique<BadgesDataSourceDelegate>()) {
  collectionView->registerCell(kBadgeCell, BadgeCollectionViewCell::fromPrototype);
}

void BadgesViewController::connectOutlets() {
  connectOutlet(emptyLabel, "emptyLabel", *view())
      ->setText(tr("No badges yet.\nComplete or create a challenge to earn one!").toStdString());
}

void BadgesViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  navigationItem()->setRightBarButtonItem(createChallengeButton(*this));
  dataSourceDelegate->parentVC = this;
  collectionView->setDataSource(dataSourceDelegate.get());
  collectionView->setDelegate(dataSourceDelegate.get());
}

// The grid may have taken its new size already.
void BadgesViewController::viewWillLayoutSubviews() {
  bouncyFlowLayout->invalidateLayout();
  collectionView->layoutIfNeeded();
}

void BadgesViewController::viewWillAppear(bool animated) {
  UIViewController::viewWillAppear(animated);
  dataSourceDelegate->refreshData(*collectionView, true);
  connected(emptyLabel)->setHidden(!dataSourceDelegate->badges.empty());
}

void BadgesViewController::viewDidAppear(bool animated) {
  UIViewController::viewDidAppear(animated);
  if (UINavigationController* navigation = navigationController()) {
    navigation->tabBarItem()->setBadgeValue({});
  }
  navigationItem()->setPrompt({});
}

void BadgesViewController::prepareForSegue(const UIStoryboardSegue& segue,
                                           const std::any& /*sender*/) {
  if (segue.identifier != kShowBadgeDetail) return;
  const auto& selected = collectionView->indexPathsForSelectedItems();
  if (selected.empty()) fatalError("no badge is selected");
  auto& info = dynamic_cast<BadgeInfoViewController&>(*segue.destinationViewController);
  info.challenge = dataSourceDelegate->badgeAt(selected.front());
}

// --- Passing on at once ---

void BadgesViewController::setChallengeToPassOn(const ChallengeRef& challenge) {
  challengeToPassOn_ = challenge;
  if (challengeToPassOn_) passOnAtOnce();
}

void BadgesViewController::passOnAtOnce() {
  const ChallengeRef challenge = std::exchange(challengeToPassOn_, nullptr);
  UINavigationController* navigation = navigationController();
  if (navigation == nullptr || storyboard() == nullptr) return;
  const auto info = std::dynamic_pointer_cast<BadgeInfoViewController>(
      storyboard()->instantiateViewController(kBadgeInfoScene));
  const auto picker = std::dynamic_pointer_cast<KindoraTableViewController>(
      storyboard()->instantiateViewController(kPickerScene));
  info->challenge = challenge;
  picker->challenge = challenge;
  navigation->popToRootViewController(false);
  navigation->pushViewController(info, false);
  navigation->pushViewController(picker, true);
}

}  // namespace kindora
