// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/PassOnFromBadges.h"

#include "screens/badges/BadgeInfoViewController.h"
#include "screens/badges/BadgesViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

class PassOnFromBadgesTest : public AppFixture {
 protected:
  static UINavigationController& stack() {
    return dynamic_cast<UINavigationController&>(*tabs().viewControllers()[1]);
  }
  template <typename Controller>
  static Controller& at(std::size_t place) {
    return dynamic_cast<Controller&>(*stack().viewControllers().at(place));
  }
  void passOn(const ChallengeRef& which) {
    passOnFromBadges(which);
    time.advance(0.5);
  }
  // Badge info and picker of the challenge, above the grid.
  static void expectLanded(const ChallengeRef& which) {
    EXPECT_EQ(tabs().selectedIndex(), 1);
    ASSERT_EQ(stack().viewControllers().size(), 3u);
    EXPECT_NE(dynamic_cast<BadgesViewController*>(stack().viewControllers()[0].get()), nullptr);
    EXPECT_EQ(at<BadgeInfoViewController>(1).challenge, which);
    EXPECT_EQ(at<KindoraTableViewController>(2).challenge, which);
    EXPECT_TRUE(stack().viewControllers()[2]->isVisible());
    EXPECT_FALSE(stack().viewControllers()[0]->isVisible());
    EXPECT_FALSE(stack().viewControllers()[1]->isVisible());
    EXPECT_FALSE(stack().isTransitioning());
  }

  const ChallengeRef challenge = store().inProgressChallenges[0];
  const ChallengeRef another = store().inProgressChallenges[1];
};

TEST_F(PassOnFromBadgesTest, LandsOnATabThatWasNeverShown) {
  ASSERT_FALSE(stack().viewControllers()[0]->isViewLoaded());
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LandsOnATabThatShowsItsGrid) {
  tabs().pressTab(1);
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LandsOnATabThatWasShownBefore) {
  tabs().pressTab(1);
  tabs().pressTab(0);
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LandsOnATabThatShowsAnotherBadgesPicker) {
  passOn(another);
  tabs().pressTab(0);
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LandsOnATabThatShowsAnotherBadge) {
  passOn(another);
  stack().popViewController(false);
  tabs().pressTab(0);
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LandsWhileAnotherPickerIsStillComingIn) {
  passOnFromBadges(another);
  time.advance(0.1);
  passOn(challenge);
  expectLanded(challenge);
}

TEST_F(PassOnFromBadgesTest, LeavesNothingOfTheScreensThatWereThere) {
  passOn(another);
  const std::weak_ptr<UIViewController> info = at<BadgeInfoViewController>(1).weak_from_this();
  const std::weak_ptr<UIViewController> picker = at<KindoraTableViewController>(2).weak_from_this();
  passOn(challenge);
  EXPECT_TRUE(info.expired());
  EXPECT_TRUE(picker.expired());
}

TEST_F(PassOnFromBadgesTest, ThePickerComesInAnimatedAndTheBadgeDoesNot) {
  tabs().pressTab(1);
  passOnFromBadges(challenge);
  EXPECT_TRUE(stack().isTransitioning());
  EXPECT_EQ(stack().viewControllers().size(), 3u);
}

TEST_F(PassOnFromBadgesTest, LeavingThePickerShowsTheBadgeAndThenTheGrid) {
  passOn(challenge);
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_TRUE(at<BadgeInfoViewController>(1).isVisible());
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_TRUE(at<BadgesViewController>(0).isVisible());
}

TEST_F(PassOnFromBadgesTest, TheBubbleStaysUntilTheGridItselfAppears) {
  stack().tabBarItem()->setBadgeValue(QStringLiteral("1"));
  passOn(challenge);
  EXPECT_EQ(stack().tabBarItem()->badgeValue(), QStringLiteral("1"));
  stack().popToRootViewController(true);
  time.advance(0.5);
  EXPECT_TRUE(stack().tabBarItem()->badgeValue().isNull());
}

TEST_F(PassOnFromBadgesTest, TheHandOverIsUsedUp) {
  passOn(challenge);
  EXPECT_EQ(at<BadgesViewController>(0).challengeToPassOn(), nullptr);
}

TEST_F(PassOnFromBadgesTest, NoChallengeChangesNothingButTheTab) {
  passOn(nullptr);
  EXPECT_EQ(stack().viewControllers().size(), 1u);
  EXPECT_EQ(tabs().selectedIndex(), 1);
}

TEST_F(PassOnFromBadgesTest, WithASingleTabNothingHappens) {
  const auto only = makeViewController<UINavigationController>(
      mainStoryboard().instantiateViewController("ChallengesTableViewController"));
  delegate().rootTabBarController =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{only});
  passOn(challenge);
  EXPECT_EQ(tabs().selectedIndex(), 0);
  EXPECT_EQ(only->viewControllers().size(), 1u);
}

TEST_F(PassOnFromBadgesTest, ASecondTabOfAnotherKindIsShownAndGetsNothing) {
  const auto first = makeViewController<UIViewController>();
  const auto second = makeViewController<UIViewController>();
  delegate().rootTabBarController =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{first, second});
  passOn(challenge);
  EXPECT_EQ(tabs().selectedIndex(), 1);
}

}  // namespace
}  // namespace kindora
