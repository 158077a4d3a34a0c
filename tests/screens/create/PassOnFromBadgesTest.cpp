// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PassOnFromBadges.h"

#include "screens/badges/BadgesViewController.h"
#include "tests/support/AppFixture.h"

namespace kindora {
namespace {

class PassOnFromBadgesTest : public AppFixture {
 protected:
  static void show(const std::vector<UIViewControllerRef>& screens) {
    delegate().rootTabBarController = makeViewController<UITabBarController>(screens);
  }
  static UIViewControllerRef plain() { return makeViewController<UIViewController>(); }

  const ChallengeRef challenge = std::make_shared<Challenge>();
};

TEST_F(PassOnFromBadgesTest, HandsTheChallengeToTheRootOfTheSecondTabAndSelectsIt) {
  const auto badges = makeViewController<BadgesViewController>();
  show({plain(), makeViewController<UINavigationController>(badges)});
  passOnFromBadges(challenge);
  EXPECT_EQ(badges->challengeToPassOn(), challenge);
  EXPECT_EQ(tabs().selectedIndex(), 1);
}

TEST_F(PassOnFromBadgesTest, ABadgesScreenWithoutAStackIsFoundToo) {
  const auto badges = makeViewController<BadgesViewController>();
  show({plain(), badges});
  passOnFromBadges(challenge);
  EXPECT_EQ(badges->challengeToPassOn(), challenge);
}

TEST_F(PassOnFromBadgesTest, AnotherScreenInItsPlaceIsLeftAlone) {
  show({plain(), plain()});
  passOnFromBadges(challenge);
  EXPECT_EQ(tabs().selectedIndex(), 1);
}

TEST_F(PassOnFromBadgesTest, OneTabAloneStaysSelected) {
  show({makeViewController<BadgesViewController>()});
  passOnFromBadges(challenge);
  EXPECT_EQ(tabs().selectedIndex(), 0);
}

}  // namespace
}  // namespace kindora
