// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgesViewController.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "screens/badges/BadgeCollectionViewCell.h"
#include "screens/badges/BadgeInfoViewController.h"
#include "tests/screens/badges/Badge.h"
#include "tests/screens/badges/ComeBack.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Titles = std::vector<std::string>;

// The grid on a page of 320 x 480 points.
class BadgesViewControllerTest : public AppFixture {
 protected:
  void open() {
    tabs().pressTab(1);
    grid().setFrame({{0, 0}, {320, 480}});
  }
  void comeBack() {
    tabs().pressTab(0);
    tabs().pressTab(1);
  }
  static UINavigationController& stack() {
    return dynamic_cast<UINavigationController&>(*tabs().viewControllers()[1]);
  }
  static BadgesViewController& screen() {
    return dynamic_cast<BadgesViewController&>(*stack().viewControllers().front());
  }
  static CollectionView& grid() { return *screen().collectionView; }
  static bool saysEmpty() { return !screen().emptyLabel.lock()->isHidden(); }
  static Titles shown() {
    Titles titles;
    for (const auto& [path, place] : grid().shownCells()) {
      const auto& cell = dynamic_cast<BadgeCollectionViewCell&>(*place.cell);
      titles.push_back(cell.challenge()->title.value_or("(none)"));
    }
    return titles;
  }
  static CGRect frame(int item) { return grid().shownCells().at(IndexPath{0, item}).frame; }
  static void earn(const std::string& title) { store().addCreatedChallenge(badge(title)); }
};

// --- Setting up ---

TEST_F(BadgesViewControllerTest, TheGridHangsOnTheSpringyLayout) {
  open();
  EXPECT_EQ(screen().bouncyFlowLayout->collectionView(), screen().collectionView.get());
}

TEST_F(BadgesViewControllerTest, ItsDataSourceIsItsDelegateToo) {
  open();
  EXPECT_EQ(screen().dataSourceDelegate->parentVC, &screen());
  EXPECT_EQ(grid().delegate(), screen().dataSourceDelegate.get());
}

// --- Empty or not ---

TEST_F(BadgesViewControllerTest, SaysThatThereAreNoBadges) {
  open();
  EXPECT_TRUE(saysEmpty());
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_FALSE(screen().emptyLabel.lock()->text().value_or("").empty());
}

TEST_F(BadgesViewControllerTest, ABadgeTakesTheWordsAway) {
  earn("a");
  open();
  EXPECT_FALSE(saysEmpty());
  EXPECT_THAT(shown(), ElementsAre("a"));
}

TEST_F(BadgesViewControllerTest, LooksAnewEachTimeItAppears) {
  open();
  earn("a");
  EXPECT_TRUE(saysEmpty());
  comeBack();
  EXPECT_FALSE(saysEmpty());
  EXPECT_THAT(shown(), ElementsAre("a"));
  store().completedChallenges.clear();
  comeBack();
  EXPECT_TRUE(saysEmpty());
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(BadgesViewControllerTest, ANewBadgeIsTheFirst) {
  earn("old");
  open();
  earn("new");
  comeBack();
  EXPECT_THAT(shown(), ElementsAre("new", "old"));
  EXPECT_EQ(frame(0), (CGRect{{10, 10}, {90, 140}}));
  EXPECT_EQ(frame(1), (CGRect{{115, 10}, {90, 140}}));
}

TEST_F(BadgesViewControllerTest, ComesBackAtRest) {
  for (int i = 0; i < 30; ++i) earn("badge");
  open();
  grid().setContentOffset({0, 300});
  ASSERT_FALSE(grid().isResting());
  comeBack();
  EXPECT_TRUE(grid().isResting());
}

TEST_F(BadgesViewControllerTest, AnEmptyGridMayBeScrolled) {
  open();
  grid().setPanLocation({50, 50});
  grid().setContentOffset({0, -40});
  grid().advance(0.1);
  grid().setContentOffset({0, 0});
  EXPECT_TRUE(grid().isResting());
}

// --- Appearing ---

TEST_F(BadgesViewControllerTest, TakesTheBubbleOffItsTab) {
  stack().tabBarItem()->setBadgeValue(QStringLiteral("3"));
  open();
  EXPECT_TRUE(stack().tabBarItem()->badgeValue().isNull());
}

TEST_F(BadgesViewControllerTest, LeavesTheOtherTabsBubble) {
  navigation().tabBarItem()->setBadgeValue(QStringLiteral("3"));
  open();
  EXPECT_EQ(navigation().tabBarItem()->badgeValue(), QStringLiteral("3"));
}

TEST_F(BadgesViewControllerTest, TakesThePromptAway) {
  screen().navigationItem()->setPrompt(QStringLiteral("Prompt"));
  open();
  EXPECT_TRUE(screen().navigationItem()->prompt().isEmpty());
}

TEST_F(BadgesViewControllerTest, KeepsTheBubbleUntilItHasAppeared) {
  earn("a");
  open();
  grid().select({0, 0});
  time.advance(0.5);
  stack().tabBarItem()->setBadgeValue(QStringLiteral("1"));
  stack().popViewController(true);
  time.advance(0.1);
  EXPECT_EQ(stack().tabBarItem()->badgeValue(), QStringLiteral("1"));
  time.advance(0.5);
  EXPECT_TRUE(stack().tabBarItem()->badgeValue().isNull());
}

// --- Opening a badge ---

TEST_F(BadgesViewControllerTest, ABadgeOpensItsPage) {
  earn("b");
  earn("a");
  open();
  grid().select({0, 1});
  const auto& info = dynamic_cast<BadgeInfoViewController&>(*stack().topViewController());
  EXPECT_EQ(info.challenge, store().completedChallenges[1]);
}

TEST_F(BadgesViewControllerTest, AnotherBadgeOpensAfterComingBack) {
  earn("b");
  earn("a");
  open();
  grid().select({0, 1});
  time.advance(0.5);
  stack().popViewController(false);
  EXPECT_THAT(grid().indexPathsForSelectedItems(), IsEmpty());
  grid().select({0, 0});
  const auto& info = dynamic_cast<BadgeInfoViewController&>(*stack().topViewController());
  EXPECT_EQ(info.challenge, store().completedChallenges[0]);
}

TEST_F(BadgesViewControllerTest, ALaggingBadgeOpensItsPage) {
  for (int i = 0; i < 30; ++i) earn(std::to_string(29 - i));
  open();
  grid().setPanLocation({160, 240});
  grid().setContentOffset({0, 60});
  ASSERT_FALSE(grid().isResting());
  grid().select({0, 7});
  const auto& info = dynamic_cast<BadgeInfoViewController&>(*stack().topViewController());
  EXPECT_EQ(info.challenge->title, "7");
}

TEST_F(BadgesViewControllerTest, OtherSeguesNeedNoSelection) {
  open();
  screen().prepareForSegue({.identifier = "other"}, {});
  EXPECT_EQ(stack().viewControllers().size(), 1u);
}

TEST_F(BadgesViewControllerTest, TheDetailWithoutASelectionStops) {
  earn("a");
  open();
  EXPECT_DEATH(screen().performSegueWithIdentifier("showBadgeDetail"),
               "fatal error: no badge is selected");
}

// --- Other sizes ---

TEST_F(BadgesViewControllerTest, BadgesFollowTheWidth) {
  for (int i = 0; i < 4; ++i) earn("badge");
  open();
  screen().viewWillLayoutSubviews();
  grid().setFrame({{0, 0}, {375, 480}});
  EXPECT_EQ(frame(0), (CGRect{{10, 10}, {108, 140}}));
  EXPECT_EQ(frame(2).origin.x + frame(2).size.width, 365);
}

// The page hears of its own size after what lies on it.
TEST_F(BadgesViewControllerTest, BadgesFollowTheWidthWhenTheGridKnowsItFirst) {
  for (int i = 0; i < 4; ++i) earn("badge");
  open();
  grid().setFrame({{0, 0}, {375, 480}});
  screen().viewWillLayoutSubviews();
  EXPECT_EQ(frame(0), (CGRect{{10, 10}, {108, 140}}));
  EXPECT_EQ(grid().contentSize().height, 310);
  EXPECT_EQ(
      screen().bouncyFlowLayout->layoutAttributesForElementsInRect({{0, 0}, {375, 480}}).size(),
      4u);
}

// --- Coming back ---

TEST_F(BadgesViewControllerTest, ScreensOfABadgeMayComeBackHere) {
  earn("a");
  open();
  grid().select({0, 0});
  time.advance(0.5);
  ASSERT_NE(stack().topViewController().get(), &screen());
  comeBackFromAbove(stack(), "unwindToBadges");
  time.advance(0.5);
  EXPECT_EQ(stack().topViewController().get(), &screen());
  EXPECT_TRUE(screen().isVisible());
}

TEST_F(BadgesViewControllerTest, WithoutAStackThereIsNowhereToPassOn) {
  const auto loose = std::dynamic_pointer_cast<BadgesViewController>(
      mainStoryboard().instantiateViewController("BadgesViewController"));
  loose->setChallengeToPassOn(badge("a"));
  EXPECT_EQ(loose->challengeToPassOn(), nullptr);
}

TEST_F(BadgesViewControllerTest, AForgottenLabelStops) {
  open();
  screen().emptyLabel.lock()->removeFromSuperview();
  EXPECT_DEATH(screen().viewWillAppear(false), "fatal error: an outlet is not connected");
}

}  // namespace
}  // namespace kindora
