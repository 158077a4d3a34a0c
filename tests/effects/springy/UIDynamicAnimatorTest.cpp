// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/UIDynamicAnimator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "tests/effects/springy/SpringyFixture.h"
#include "toolkit/collection/UICollectionViewFlowLayout.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kDamping = 0.8F;

class UIDynamicAnimatorTest : public testing::Test {
 protected:
  // Rests on (100, 100 x row).
  UIAttachmentBehaviorRef spring(int row) {
    const double y = 100.0 * row;
    const auto item = std::make_shared<UICollectionViewLayoutAttributes>(
        IndexPath{0, row}, CGRect{{80, y - 20}, {40, 40}});
    auto behavior = UIAttachmentBehavior::initWithItem(item, item->center());
    behavior->setDamping(kDamping);
    behavior->setFrequency(1);
    return behavior;
  }
  UIAttachmentBehaviorRef added(int row) {
    auto behavior = spring(row);
    animator->addBehavior(behavior);
    return behavior;
  }
  static UICollectionViewLayoutAttributes& itemOf(const UIAttachmentBehaviorRef& behavior) {
    return *behavior->items().front();
  }
  void moveBy(const UIAttachmentBehaviorRef& behavior, double dx, double dy) {
    const CGPoint center = itemOf(behavior).center();
    itemOf(behavior).setCenter({center.x + dx, center.y + dy});
    animator->updateItemUsingCurrentState(behavior->items().front());
  }

  UICollectionViewFlowLayout layout;
  std::shared_ptr<UIDynamicAnimator> animator =
      UIDynamicAnimator::initWithCollectionViewLayout(layout);
};

TEST_F(UIDynamicAnimatorTest, BelongsToItsLayoutAndStartsEmpty) {
  EXPECT_EQ(&animator->collectionViewLayout(), &layout);
  EXPECT_THAT(animator->behaviors(), IsEmpty());
  EXPECT_TRUE(animator->isResting());
  EXPECT_FALSE(animator->advance(1));
}

TEST_F(UIDynamicAnimatorTest, KeepsItsBehavioursInTheOrderOfAdding) {
  const auto third = added(3);
  const auto first = added(1);
  const auto second = added(2);
  EXPECT_THAT(animator->behaviors(), ElementsAre(third, first, second));
  animator->removeBehavior(first);
  EXPECT_THAT(animator->behaviors(), ElementsAre(third, second));
  animator->addBehavior(first);
  EXPECT_THAT(animator->behaviors(), ElementsAre(third, second, first));
}

TEST_F(UIDynamicAnimatorTest, MayBeEmptiedWhileItsBehavioursAreGoneThrough) {
  added(1);
  added(2);
  for (const auto& behavior : animator->behaviors()) animator->removeBehavior(behavior);
  EXPECT_THAT(animator->behaviors(), IsEmpty());
}

TEST_F(UIDynamicAnimatorTest, RemovingAStrangerDoesNothing) {
  const auto own = added(1);
  animator->removeBehavior(spring(1));
  animator->removeBehavior(spring(2));
  EXPECT_THAT(animator->behaviors(), ElementsAre(own));
}

TEST_F(UIDynamicAnimatorTest, FindsItemsByRectWithoutTouchingEdges) {
  added(2);
  added(1);
  EXPECT_THAT(rowsOf(animator->itemsInRect({{0, 0}, {500, 500}})), ElementsAre(2, 1));
  EXPECT_THAT(rowsOf(animator->itemsInRect({{0, 119}, {500, 50}})), ElementsAre(1));
  EXPECT_THAT(animator->itemsInRect({{0, 120}, {500, 60}}), IsEmpty());
  EXPECT_THAT(animator->itemsInRect({{0, 0}, {80, 500}}), IsEmpty());
}

TEST_F(UIDynamicAnimatorTest, FindsItemsWhereTheyAreNow) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 300);
  EXPECT_THAT(animator->itemsInRect({{0, 80}, {500, 40}}), IsEmpty());
  EXPECT_THAT(rowsOf(animator->itemsInRect({{0, 380}, {500, 40}})), ElementsAre(1));
}

TEST_F(UIDynamicAnimatorTest, FindsTheItemOfACell) {
  const auto behavior = added(1);
  EXPECT_EQ(animator->layoutAttributesForCellAtIndexPath({0, 1}), behavior->items().front());
  EXPECT_EQ(animator->layoutAttributesForCellAtIndexPath({0, 2}), nullptr);
  EXPECT_EQ(animator->layoutAttributesForCellAtIndexPath({1, 1}), nullptr);
}

TEST_F(UIDynamicAnimatorTest, ItemThatRestsOnItsAnchorSleeps) {
  added(1);
  EXPECT_TRUE(animator->isResting());
  EXPECT_FALSE(animator->advance(1 / 60.0));
}

TEST_F(UIDynamicAnimatorTest, ItemThatIsAddedDisplacedIsAwake) {
  const auto behavior = spring(1);
  itemOf(behavior).setCenter({100, 120});
  animator->addBehavior(behavior);
  EXPECT_FALSE(animator->isResting());
  EXPECT_TRUE(animator->advance(1 / 60.0));
  EXPECT_LT(itemOf(behavior).center().y, 120);
}

TEST_F(UIDynamicAnimatorTest, MoveCountsOnlyOnceItIsTold) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 20);
  itemOf(behavior).setCenter({100, 500});
  animator->advance(1 / 60.0);
  EXPECT_LT(itemOf(behavior).center().y, 120);
}

TEST_F(UIDynamicAnimatorTest, ReleasedItemFollowsTheClosedForm) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 20);
  const double w = 2 * std::numbers::pi;
  const double swing = w * std::sqrt(1 - kDamping * kDamping);
  for (int frame = 1; frame <= 60; ++frame) {
    animator->advance(1 / 60.0);
    const double t = frame / 60.0;
    const double expected = 20 * std::exp(-kDamping * w * t) *
                            (std::cos(swing * t) + kDamping * w / swing * std::sin(swing * t));
    EXPECT_NEAR(itemOf(behavior).center().y - 100, expected, 1e-9);
    if (animator->isResting()) break;
  }
}

TEST_F(UIDynamicAnimatorTest, FrameRateMakesNoDifference) {
  for (const double rate : {24.0, 60.0, 120.0, 1000.0}) {
    const auto behavior = spring(1);
    animator->addBehavior(behavior);
    moveBy(behavior, 0, 100);
    for (int i = 0; i < static_cast<int>(rate / 4); ++i) animator->advance(1 / rate);
    const double quarter = 100 + DampedSpring(1, kDamping, 0.25).after({100, 0}).displacement;
    EXPECT_NEAR(itemOf(behavior).center().y, quarter, 1e-9);
    animator->removeBehavior(behavior);
  }
}

TEST_F(UIDynamicAnimatorTest, LongGapEndsOnTheAnchor) {
  const auto behavior = added(1);
  moveBy(behavior, 30, 400);
  EXPECT_TRUE(animator->advance(5));
  EXPECT_EQ(itemOf(behavior).center(), (CGPoint{100, 100}));
  EXPECT_TRUE(animator->isResting());
}

TEST_F(UIDynamicAnimatorTest, EndsExactlyOnTheAnchorAndSleeps) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 37.3);
  int frames = 0;
  while (!animator->isResting()) {
    EXPECT_TRUE(animator->advance(1 / 60.0));
    ASSERT_LT(++frames, 300);
  }
  EXPECT_EQ(itemOf(behavior).center(), (CGPoint{100, 100}));
  EXPECT_FALSE(animator->advance(1 / 60.0));
}

TEST_F(UIDynamicAnimatorTest, DoesNotFallAsleepWhileItRushesThroughTheAnchor) {
  const auto behavior = added(1);
  behavior->setDamping(0);
  moveBy(behavior, 0, 20);
  // A quarter of a swing: on the anchor at full speed.
  animator->advance(0.25);
  EXPECT_NEAR(itemOf(behavior).center().y, 100, 1e-9);
  EXPECT_FALSE(animator->isResting());
  animator->advance(0.25);
  EXPECT_NEAR(itemOf(behavior).center().y, 80, 1e-9);
}

TEST_F(UIDynamicAnimatorTest, DoesNotFallAsleepFarFromTheAnchor) {
  const auto behavior = added(1);
  behavior->setDamping(0);
  moveBy(behavior, 0, 0.06);
  // Half a swing: on the other side, at a standstill.
  animator->advance(0.5);
  EXPECT_NEAR(itemOf(behavior).center().y, 99.94, 1e-9);
  EXPECT_FALSE(animator->isResting());
}

TEST_F(UIDynamicAnimatorTest, HairsbreadthSnapsBack) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 0.04);
  EXPECT_FALSE(animator->isResting());
  EXPECT_TRUE(animator->advance(1 / 60.0));
  EXPECT_EQ(itemOf(behavior).center(), (CGPoint{100, 100}));
  EXPECT_TRUE(animator->isResting());
}

TEST_F(UIDynamicAnimatorTest, UpdateWakesASleepingItemAndKeepsTheSpeedOfAMovingOne) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 20);
  animator->advance(0.1);
  const SpringState before = DampedSpring(1, kDamping, 0.1).after({20, 0});
  moveBy(behavior, 0, 5);
  animator->advance(0.1);
  const double expected =
      DampedSpring(1, kDamping, 0.1).after({before.displacement + 5, before.velocity}).displacement;
  EXPECT_NEAR(itemOf(behavior).center().y - 100, expected, 1e-9);
}

TEST_F(UIDynamicAnimatorTest, UpdateOfAStrangerDoesNothing) {
  added(1);
  animator->updateItemUsingCurrentState(spring(2)->items().front());
  const auto other = spring(1);
  itemOf(other).setCenter({0, 0});
  animator->updateItemUsingCurrentState(other->items().front());
  EXPECT_TRUE(animator->isResting());
}

TEST_F(UIDynamicAnimatorTest, TimeThatDoesNotPassMovesNothing) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 20);
  for (const double seconds : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(animator->advance(seconds));
    EXPECT_EQ(itemOf(behavior).center().y, 120);
  }
  EXPECT_FALSE(animator->isResting());
}

TEST_F(UIDynamicAnimatorTest, MovesSidewaysToo) {
  const auto behavior = added(1);
  moveBy(behavior, -30, 0);
  animator->advance(0.1);
  EXPECT_GT(itemOf(behavior).center().x, 70);
  EXPECT_EQ(itemOf(behavior).center().y, 100);
}

TEST_F(UIDynamicAnimatorTest, RemovedItemStaysWhereItIsAndNoLongerCountsAsMoving) {
  const auto behavior = added(1);
  moveBy(behavior, 0, 20);
  animator->removeBehavior(behavior);
  EXPECT_TRUE(animator->isResting());
  EXPECT_FALSE(animator->advance(1));
  EXPECT_EQ(itemOf(behavior).center().y, 120);
}

TEST_F(UIDynamicAnimatorTest, RemovingAllLeavesNothingMoving) {
  moveBy(added(1), 0, 20);
  moveBy(added(2), 0, 20);
  animator->removeAllBehaviors();
  EXPECT_TRUE(animator->isResting());
  EXPECT_THAT(animator->behaviors(), IsEmpty());
  EXPECT_EQ(animator->layoutAttributesForCellAtIndexPath({0, 1}), nullptr);
}

using UIDynamicAnimatorDeathTest = UIDynamicAnimatorTest;

TEST_F(UIDynamicAnimatorDeathTest, SecondSpringForACellStops) {
  added(1);
  EXPECT_DEATH(added(1), "a spring already");
}

TEST_F(UIDynamicAnimatorDeathTest, SpringWithALengthStops) {
  const auto behavior = spring(1);
  behavior->setLength(1);
  EXPECT_DEATH(animator->addBehavior(behavior), "length 0");
}

TEST_F(UIDynamicAnimatorDeathTest, RigidSpringStops) {
  const auto behavior = spring(1);
  behavior->setFrequency(0);
  EXPECT_DEATH(animator->addBehavior(behavior), "frequency above 0");
}

TEST_F(UIDynamicAnimatorDeathTest, SpringThatWouldSwingUpStops) {
  const auto behavior = spring(1);
  behavior->setDamping(-0.1);
  EXPECT_DEATH(animator->addBehavior(behavior), "damping of 0 or more");
}

}  // namespace
}  // namespace kindora
