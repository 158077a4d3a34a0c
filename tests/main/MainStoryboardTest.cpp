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
#include "tests/support/PhoneFormatsOf.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

class MainStoryboardTest : public AppFixture {
 protected:
  MainStoryboardTest() { installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>("US")); }
  static const UIViewControllerRef& tab(std::size_t index) {
    return tabs().viewControllers().at(index);
  }
  static UIViewController* rootOfTab(std::size_t index) {
    return dynamic_cast<UINavigationController&>(*tab(index)).topViewController().get();
  }
  template <typename Controller>
  static bool makes(std::string_view scene) {
    return std::dynamic_pointer_cast<Controller>(
               mainStoryboard().instantiateViewController(scene)) != nullptr;
  }
};

TEST_F(MainStoryboardTest, HasTwoTabs) { EXPECT_EQ(tabs().viewControllers().size(), 2u); }

TEST_F(MainStoryboardTest, Tab0IsTheChallengeList) {
  EXPECT_NE(dynamic_cast<ChallengesTableViewController*>(rootOfTab(0)), nullptr);
  EXPECT_EQ(tab(0)->tabBarItem()->title(), QStringLiteral("Challenges"));
  EXPECT_EQ(rootOfTab(0)->title(), QStringLiteral("Challenges"));
}

TEST_F(MainStoryboardTest, Tab1IsTheBadges) {
  EXPECT_NE(dynamic_cast<BadgesViewController*>(rootOfTab(1)), nullptr);
  EXPECT_EQ(tab(1)->tabBarItem()->title(), QStringLiteral("Badges"));
  EXPECT_EQ(rootOfTab(1)->title(), QStringLiteral("Badges"));
}

TEST_F(MainStoryboardTest, TheTabsHaveGlyphsOfTheirOwn) {
  EXPECT_EQ(tab(0)->tabBarItem()->imageName(), QStringLiteral("tabChallenges"));
  EXPECT_EQ(tab(1)->tabBarItem()->imageName(), QStringLiteral("tabBadges"));
}

TEST_F(MainStoryboardTest, NoTabBearsABadge) {
  EXPECT_TRUE(tab(0)->tabBarItem()->badgeValue().isNull());
  EXPECT_TRUE(tab(1)->tabBarItem()->badgeValue().isNull());
}

TEST_F(MainStoryboardTest, MakesEveryScreen) {
  EXPECT_TRUE(makes<ChallengesTableViewController>("ChallengesTableViewController"));
  EXPECT_TRUE(makes<NewChallengeDetailViewController>("NewChallengeDetailViewController"));
  EXPECT_TRUE(
      makes<InProgressChallengeDetailViewController>("InProgressChallengeDetailViewController"));
  EXPECT_TRUE(makes<BadgesViewController>("BadgesViewController"));
  EXPECT_TRUE(makes<BadgeInfoViewController>("BadgeInfoViewController"));
  EXPECT_TRUE(makes<KindoraTableViewController>("KindoraTableViewController"));
  EXPECT_TRUE(makes<InviteFriendTableViewController>("InviteFriendTableViewController"));
  EXPECT_TRUE(makes<UINavigationController>("CreateChallengeNavigationController"));
  EXPECT_TRUE(makes<CreateChallengeTableViewController>("CreateChallengeTableViewController"));
}

TEST_F(MainStoryboardTest, CreatingHasANavigationOfItsOwn) {
  const auto navigation = std::dynamic_pointer_cast<UINavigationController>(
      mainStoryboard().instantiateViewController("CreateChallengeNavigationController"));
  ASSERT_EQ(navigation->viewControllers().size(), 1u);
  EXPECT_NE(
      dynamic_cast<CreateChallengeTableViewController*>(navigation->topViewController().get()),
      nullptr);
}

TEST_F(MainStoryboardTest, EveryScreenHasAPageOfItsOwn) {
  const auto page = [](std::string_view scene) {
    return mainStoryboard().instantiateViewController(scene)->page().fileName();
  };
  EXPECT_EQ(page("ChallengesTableViewController"), QStringLiteral("ChallengesPage.qml"));
  EXPECT_EQ(page("NewChallengeDetailViewController"), QStringLiteral("NewChallengePage.qml"));
  EXPECT_EQ(page("InProgressChallengeDetailViewController"),
            QStringLiteral("InProgressChallengePage.qml"));
  EXPECT_EQ(page("BadgesViewController"), QStringLiteral("BadgesPage.qml"));
  EXPECT_EQ(page("BadgeInfoViewController"), QStringLiteral("BadgeInfoPage.qml"));
  EXPECT_EQ(page("KindoraTableViewController"), QStringLiteral("KindoraPage.qml"));
  EXPECT_EQ(page("InviteFriendTableViewController"), QStringLiteral("InviteFriendPage.qml"));
  EXPECT_EQ(page("CreateChallengeTableViewController"), QStringLiteral("CreateChallengePage.qml"));
}

TEST_F(MainStoryboardTest, AnUnknownSceneStops) {
  EXPECT_DEATH(static_cast<void>(mainStoryboard().instantiateViewController("Unknown")),
               "fatal error: the storyboard has no scene \"Unknown\"");
}

TEST_F(MainStoryboardTest, TheListLeadsToNewChallenges) {
  rootOfTab(0)->performSegueWithIdentifier("showNewChallenge", IndexPath{0, 0});
  EXPECT_NE(dynamic_cast<NewChallengeDetailViewController*>(rootOfTab(0)), nullptr);
}

TEST_F(MainStoryboardTest, TheListLeadsToChallengesInProgress) {
  rootOfTab(0)->performSegueWithIdentifier("showInProgressChallenge", IndexPath{1, 0});
  EXPECT_NE(dynamic_cast<InProgressChallengeDetailViewController*>(rootOfTab(0)), nullptr);
}

TEST_F(MainStoryboardTest, ANewChallengeUnwindsToTheList) {
  rootOfTab(0)->performSegueWithIdentifier("showNewChallenge", IndexPath{0, 0});
  time.advance(0.5);
  rootOfTab(0)->performSegueWithIdentifier("unwind");
  time.advance(0.5);
  EXPECT_NE(dynamic_cast<ChallengesTableViewController*>(rootOfTab(0)), nullptr);
  EXPECT_TRUE(rootOfTab(0)->isVisible());
}

TEST_F(MainStoryboardTest, AChallengeInProgressUnwindsToTheList) {
  rootOfTab(0)->performSegueWithIdentifier("showInProgressChallenge", IndexPath{1, 0});
  time.advance(0.5);
  rootOfTab(0)->performSegueWithIdentifier("unwind");
  time.advance(0.5);
  EXPECT_NE(dynamic_cast<ChallengesTableViewController*>(rootOfTab(0)), nullptr);
}

TEST_F(MainStoryboardTest, AnUnknownSegueStops) {
  EXPECT_DEATH(rootOfTab(0)->performSegueWithIdentifier("showOther"),
               "fatal error: the screen has no segue \"showOther\"");
}

}  // namespace
}  // namespace kindora
