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
#include "toolkit/controllers/PageUrl.h"
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

// A screen in a navigation controller of its own.
std::function<UIViewControllerRef()> inNavigation(const char* scene) {
  return [scene] {
    return makeViewController<UINavigationController>(
        mainStoryboard().instantiateViewController(scene));
  };
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
       .make = makeSceneController<ChallengesTableViewController>,
       .page = pageUrl(u"Kindora.Screens.Challenges", u"ChallengesPage"),
       .segues = {{std::string(kShowNewChallenge), Kind::show, kNewChallenge},
                  {std::string(kShowInProgressChallenge), Kind::show, kInProgressChallenge},
                  toCreate},
       .unwindActions = {unwindAction(kUnwind, &ChallengesTableViewController::unwind)}},
      {.identifier = kNewChallenge,
       .make = makeSceneController<NewChallengeDetailViewController>,
       .connectOutlets = connectSceneOutlets<NewChallengeDetailViewController>,
       .page = pageUrl(u"Kindora.Screens.NewChallenge", u"NewChallengePage"),
       .segues = {backToList}},
      {.identifier = kInProgressChallenge,
       .make = makeSceneController<InProgressChallengeDetailViewController>,
       .connectOutlets = connectSceneOutlets<InProgressChallengeDetailViewController>,
       .page = pageUrl(u"Kindora.Screens.InProgress", u"InProgressChallengePage"),
       .segues = {backToList}},
      {.identifier = kBadges,
       .make = makeSceneController<BadgesViewController>,
       .connectOutlets = connectSceneOutlets<BadgesViewController>,
       .page = pageUrl(u"Kindora.Screens.Badges", u"BadgesPage"),
       .segues = {{std::string(kShowBadgeDetail), Kind::show, kBadgeInfoScene}, toCreate},
       .unwindActions = {unwindAction("unwindToBadges", &BadgesViewController::unwindToBadges)}},
      {.identifier = kBadgeInfoScene,
       .make = makeSceneController<BadgeInfoViewController>,
       .connectOutlets = connectSceneOutlets<BadgeInfoViewController>,
       .page = pageUrl(u"Kindora.Screens.Badges", u"BadgeInfoPage"),
       .segues = {{std::string(kKindora), Kind::show, kPickerScene}},
       .unwindActions = {unwindAction("unwindToBadgeInfo",
                                      &BadgeInfoViewController::unwindToBadgeInfo)}},
      {.identifier = kPickerScene,
       .make = makeSceneController<KindoraTableViewController>,
       .page = pageUrl(u"Kindora.Screens.Picker", u"KindoraPage"),
       .segues = {{std::string(kInviteFriend), Kind::show, kInvite}},
       .unwindActions = {unwindAction(kUnwindToKindora,
                                      &KindoraTableViewController::unwindToKindora)}},
      {.identifier = kInvite,
       .make = makeSceneController<InviteFriendTableViewController>,
       .connectOutlets = connectSceneOutlets<InviteFriendTableViewController>,
       .page = pageUrl(u"Kindora.Screens.Invite", u"InviteFriendPage"),
       .segues = {{std::string(kUnwindToKindora), Kind::unwind, std::string(kUnwindToKindora)}}},
      {.identifier = kCreateNavigation, .make = inNavigation(kCreate)},
      {.identifier = kCreate,
       .make = makeSceneController<CreateChallengeTableViewController>,
       .connectOutlets = connectSceneOutlets<CreateChallengeTableViewController>,
       .page = pageUrl(u"Kindora.Screens.Create", u"CreateChallengePage")},
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
      tab(kChallenges, UITabBarController::tr("Challenges"), QStringLiteral("tabChallenges")),
      tab(kBadges, UITabBarController::tr("Badges"), QStringLiteral("tabBadges"))});
}

}  // namespace kindora
