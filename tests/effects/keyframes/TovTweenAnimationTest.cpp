// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovTweenAnimation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/UIColor.h"
#include "tests/effects/keyframes/Values.h"

namespace kindora {
namespace {

double twice(double fraction) { return 2 * fraction; }

TEST(TovLinearEasing, ReturnsItsArgument) {
  for (const double x : {-1.5, 0.0, 0.3, 1.0, 7.0}) EXPECT_EQ(TovLinearEasing(x), x);
}

TEST(TovTweenAnimation, StartsLinearWithoutEnds) {
  const TovTweenAnimation tween;
  EXPECT_TRUE(tween.fromValue().isNil());
  EXPECT_TRUE(tween.toValue().isNil());
  for (const double x : {-1.5, 0.0, 0.3, 1.0, 7.0}) EXPECT_EQ(tween.easing()(x), x);
}

TEST(TovTweenAnimation, LinearTweenFollowsTheTime) {
  TovTweenAnimation tween;
  tween.setFromValue(number(0));
  tween.setToValue(number(10));
  tween.setDuration(2);
  const TovAnimationBlock block = tween.animationBlock();
  for (const double t : {0.0, 0.3, 1.0, 1.99}) EXPECT_EQ(block(t, 2), number(10 * (t / 2)));
  EXPECT_EQ(tween.values()->count(), 120U);
  EXPECT_EQ(tween.values()->objectAtIndex(60), number(5));
}

TEST(TovTweenAnimation, ColoursSwitchAtTheFrameInTheMiddle) {
  TovTweenAnimation tween;
  tween.setFromValue(color(UIColor::blackColor()));
  tween.setToValue(color(UIColor::whiteColor()));
  tween.setDuration(1);
  EXPECT_EQ(tween.values()->objectAtIndex(29), tween.fromValue());
  EXPECT_EQ(tween.values()->objectAtIndex(30), tween.toValue());
  tween.setDuration(0.25);
  EXPECT_EQ(tween.values()->objectAtIndex(7), tween.fromValue());
  EXPECT_EQ(tween.values()->objectAtIndex(8), tween.toValue());
}

TEST(TovTweenAnimation, EasingGetsTheFractionOfTheDuration) {
  TovTweenAnimation tween;
  tween.setFromValue(number(0));
  tween.setToValue(number(8));
  tween.setEasing([](double fraction) { return fraction * fraction; });
  EXPECT_EQ(tween.animationBlock()(1, 4), number(0.5));
}

TEST(TovTweenAnimation, EasingThatLeavesTheWayExtrapolates) {
  TovTweenAnimation tween;
  tween.setFromValue(number(0));
  tween.setToValue(number(10));
  tween.setEasing(twice);
  EXPECT_EQ(tween.animationBlock()(0.75, 1), number(15));
}

TEST(TovTweenAnimation, BlockKeepsTheSettingsOfItsTime) {
  TovTweenAnimation tween;
  tween.setFromValue(number(0));
  tween.setToValue(number(10));
  const TovAnimationBlock before = tween.animationBlock();
  tween.setToValue(number(20));
  tween.setEasing(twice);
  EXPECT_EQ(before(0.5, 1), number(5));
  EXPECT_EQ(tween.animationBlock()(0.5, 1), number(20));
}

TEST(TovTweenAnimationDeathTest, StopsWithoutAnEasing) {
  TovTweenAnimation tween;
  tween.setEasing(nullptr);
  EXPECT_DEATH((void)tween.animationBlock(), "needs an easing");
}

TEST(TovTweenAnimation, BlockDependsOnShortKeysAndTheEasing) {
  const TovTweenAnimation tween;
  EXPECT_THAT(tween.keyPathsForValuesAffectingValueForKey("animationBlock"),
              testing::UnorderedElementsAre("from", "to", "easing"));
  EXPECT_THAT(tween.keyPathsForValuesAffectingValueForKey("values"),
              testing::UnorderedElementsAre("animationBlock", "duration"));
}

TEST(TovTweenAnimation, ObserversOfTheBlockHearOfTheEasingButNotOfTheEnds) {
  TovTweenAnimation tween;
  int told = 0;
  int values = 0;
  int from = 0;
  const auto first = tween.addObserver("animationBlock", [&] { ++told; });
  const auto second = tween.addObserver("values", [&] { ++values; });
  const auto third = tween.addObserver("fromValue", [&] { ++from; });
  tween.setFromValue(number(1));
  tween.setToValue(number(2));
  EXPECT_EQ(told, 0);
  EXPECT_EQ(values, 0);
  EXPECT_EQ(from, 1);
  tween.setEasing(twice);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(values, 1);
}

TEST(TovTweenAnimation, CopySharesItsEndsAndCopiesItsEasing) {
  TovTweenAnimation tween;
  tween.setKeyPath("opacity");
  tween.setDuration(0.5);
  tween.setFromValue(color(UIColor::blackColor()));
  tween.setToValue(color(UIColor::whiteColor()));
  tween.setEasing(twice);
  const CAKeyframeAnimation& host = tween;
  const auto copy = std::dynamic_pointer_cast<TovTweenAnimation>(host.copy());
  ASSERT_NE(copy, nullptr);
  tween.setEasing(TovLinearEasing);
  EXPECT_EQ(copy->keyPath(), "opacity");
  EXPECT_EQ(copy->duration(), 0.5);
  EXPECT_EQ(copy->fromValue().object(), tween.fromValue().object());
  EXPECT_EQ(copy->toValue().object(), tween.toValue().object());
  EXPECT_EQ(copy->easing()(0.25), 0.5);
}

}  // namespace
}  // namespace kindora
