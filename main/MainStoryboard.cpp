// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "main/MainStoryboard.h"

#include "screens/badges/BadgeInfoViewController.h"
#include "screens/badges/BadgesViewController.h"
#include "screens/challenges/ChallengesTableViewController.h"
#include "screens/create/CreateChallengeTableViewController.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/invite/InviteFriendTableViewController.h"
#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "screens/shared/SegueIdentifiers.h"
#include "screens/shared/StoryboardIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

constexpr const char* kChallenges = "ChallengesTableViewController";
constexpr const char* kNewChallenge = "NewChallengeDetailViewController";
constexpr const char* kInProgressChallenge = "InProgressChallengeDetailViewController";
constexpr const char* kBadges = "BadgesViewController";
constexpr const char* kInvite = "InviteFriendTableViewController";
constexpr const char* kCreateNavigation = "CreateChallengeNavigationController";
constexpr const char* kCreate = "CreateChallengeTableViewController";

QUrl page(const char* name) {
  return QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Screens/%1.qml").arg(QLatin1String(name)));
}

template <typename Controller>
UIViewControllerRef make() {
  return makeViewController<Controller>();
}

// A screen in a navigation controller of its own.
std::function<UIViewControllerRef()> inNavigation(const char* scene) {
  return [scene] {
    return makeViewController<UINavigationController>(
        mainStoryboard().instantiateViewController(scene));
  };
}

template <typename Controller>
void connectOutlets(UIViewController& controller) {
  dynamic_cast<Controller&>(controller).connectOutlets();
}

template <typename Controller>
UIStoryboardUnwindAction unwindAction(std::string_view action,
                                      void (Controller::*perform)(const UIStoryboardSegue&)) {
  return {std::string(action),
          [perform](UIViewController& controller, const UIStoryboardSegue& segue) {
            (dynamic_cast<Controller&>(controller).*perform)(segue);
          }};
}

std::vector<UIStoryboardScene> scenes() {
  using Kind = UIStoryboardSegueKind;
  const UIStoryboardSegueTemplate backToList{std::string(kUnwind), Kind::unwind,
                                             std::string(kUnwind)};
  const UIStoryboardSegueTemplate toCreate{std::string(kCreateChallenge), Kind::presentModally,
                                           kCreateNavigation};
  return {
      {.identifier = kChallenges,
       .make = make<ChallengesTableViewController>,
       .page = page("Challenges/ChallengesPage"),
       .segues = {{std::string(kShowNewChallenge), Kind::show, kNewChallenge},
                  {std::string(kShowInProgressChallenge), Kind::show, kInProgressChallenge},
                  toCreate},
       .unwindActions = {unwindAction(kUnwind, &ChallengesTableViewController::unwind)}},
      {.identifier = kNewChallenge,
       .make = make<NewChallengeDetailViewController>,
       .connectOutlets = connectOutlets<NewChallengeDetailViewController>,
       .page = page("NewChallenge/NewChallengePage"),
       .segues = {backToList}},
      {.identifier = kInProgressChallenge,
       .make = make<InProgressChallengeDetailViewController>,
       .connectOutlets = connectOutlets<InProgressChallengeDetailViewController>,
       .page = page("InProgress/InProgressChallengePage"),
       .segues = {backToList}},
      {.identifier = kBadges,
       .make = make<BadgesViewController>,
       .connectOutlets = connectOutlets<BadgesViewController>,
       .page = page("Badges/BadgesPage"),
       .segues = {{std::string(kShowBadgeDetail), Kind::show, kBadgeInfoScene}, toCreate},
       .unwindActions = {unwindAction("unwindToBadges", &BadgesViewController::unwindToBadges)}},
      {.identifier = kBadgeInfoScene,
       .make = make<BadgeInfoViewController>,
       .connectOutlets = connectOutlets<BadgeInfoViewController>,
       .page = page("Badges/BadgeInfoPage"),
       .segues = {{std::string(kKindora), Kind::show, kPickerScene}},
       .unwindActions = {unwindAction("unwindToBadgeInfo",
                                      &BadgeInfoViewController::unwindToBadgeInfo)}},
      {.identifier = kPickerScene,
       .make = make<KindoraTableViewController>,
       .page = page("Picker/KindoraPage"),
       .segues = {{std::string(kInviteFriend), Kind::show, kInvite}},
       .unwindActions = {unwindAction(kUnwindToKindora,
                                      &KindoraTableViewController::unwindToKindora)}},
      {.identifier = kInvite,
       .make = make<InviteFriendTableViewController>,
       .connectOutlets = connectOutlets<InviteFriendTableViewController>,
       .page = page("Invite/InviteFriendPage"),
       .segues = {{std::string(kUnwindToKindora), Kind::unwind, std::string(kUnwindToKindora)}}},
      {.identifier = kCreateNavigation, .make = inNavigation(kCreate)},
      {.identifier = kCreate,
       .make = make<CreateChallengeTableViewController>,
       .connectOutlets = connectOutlets<CreateChallengeTableViewController>,
       .page = page("Create/CreateChallengePage")},
  };
}

UIViewControllerRef tab(const char* scene, const QString& title, const QString& imageName) {
  const UIViewControllerRef root = mainStoryboard().instantiateViewController(scene);
  root->setTitle(title);
  auto navigation = makeViewController<UINavigationController>(root);
  navigation->tabBarItem()->setTitleAndImage(title, imageName);
  return navigation;
}

}  // namespace

const UIStoryboard& mainStoryboard() {
  static const UIStoryboard& storyboard = *new UIStoryboard(scenes());  // outlives its screens
  return storyboard;
}

std::shared_ptr<UITabBarController> makeRootTabBarController() {
  return makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{
      tab(kChallenges, QStringLiteral("Challenges"), QStringLiteral("tabChallenges")),
      tab(kBadges, QStringLiteral("Badges"), QStringLiteral("tabBadges"))});
}

}  // namespace kindora
