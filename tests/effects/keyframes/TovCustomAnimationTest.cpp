// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovCustomAnimation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kindora {
namespace {

NSValue doubled(double t, double /*duration*/) { return NSValue::numberWithDouble(2 * t); }

TEST(TovCustomAnimation, HasNoBlockAsMade) { EXPECT_FALSE(TovCustomAnimation().animationBlock()); }

TEST(TovCustomAnimation, GivesBackTheBlockItWasGiven) {
  TovCustomAnimation animation;
  animation.setAnimationBlock(doubled);
  EXPECT_EQ(animation.animationBlock()(1.5, 9), NSValue::numberWithDouble(3));
  animation.setAnimationBlock(nullptr);
  EXPECT_FALSE(animation.animationBlock());
}

TEST(TovCustomAnimation, KeepsACopyOfTheBlock) {
  TovAnimationBlock block = doubled;
  TovCustomAnimation animation;
  animation.setAnimationBlock(block);
  block = nullptr;
  EXPECT_TRUE(animation.animationBlock());
}

TEST(TovCustomAnimation, ValuesComeFromTheBlock) {
  TovCustomAnimation animation;
  animation.setAnimationBlock(
      [](double t, double duration) { return NSValue::numberWithDouble(t / duration); });
  animation.setDuration(0.5);
  EXPECT_EQ(animation.values()->count(), 30U);
  EXPECT_EQ(animation.values()->objectAtIndex(15), NSValue::numberWithDouble(0.5));
}

TEST(TovCustomAnimation, ObserversHearOfANewBlock) {
  TovCustomAnimation animation;
  int block = 0;
  int values = 0;
  const auto first = animation.addObserver("animationBlock", [&] { ++block; });
  const auto second = animation.addObserver("values", [&] { ++values; });
  animation.setAnimationBlock(doubled);
  EXPECT_EQ(block, 1);
  EXPECT_EQ(values, 1);
}

TEST(TovCustomAnimation, CopyHasTheBlockAndTheHostsSettings) {
  TovCustomAnimation animation;
  animation.setAnimationBlock(doubled);
  animation.setKeyPath("opacity");
  animation.setDuration(1);
  const CAKeyframeAnimation& host = animation;
  const auto copy = std::dynamic_pointer_cast<TovCustomAnimation>(host.copy());
  ASSERT_NE(copy, nullptr);
  animation.setAnimationBlock(nullptr);
  EXPECT_EQ(copy->animationBlock()(1.5, 9), NSValue::numberWithDouble(3));
  EXPECT_EQ(copy->keyPath(), "opacity");
  EXPECT_EQ(copy->duration(), 1);
}

}  // namespace
}  // namespace kindora
