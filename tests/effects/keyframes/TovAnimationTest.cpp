// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovAnimation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "effects/keyframes/TovCustomAnimation.h"

namespace kindora {
namespace {

std::size_t framesOf(double duration) {
  TovAnimation animation;
  animation.setDuration(duration);
  return animation.values()->count();
}

// Counts how often its block is asked for.
class Counting final : public TovAnimation {
 public:
  [[nodiscard]] TovAnimationBlock animationBlock() const override {
    ++asked;
    return [](double t, double) { return NSValue::numberWithDouble(t); };
  }
  mutable int asked = 0;
};

TEST(TovAnimation, HasNoBlockOfItsOwn) { EXPECT_FALSE(TovAnimation().animationBlock()); }

TEST(TovAnimation, TakesSixtyFramesASecond) {
  EXPECT_EQ(framesOf(1), 60U);
  EXPECT_EQ(framesOf(0.25), 15U);
  EXPECT_EQ(framesOf(36000), 2160000U);
}

TEST(TovAnimation, CutsAPartOfAFrameOff) {
  EXPECT_EQ(framesOf(0.999), 59U);
  EXPECT_EQ(framesOf(0.5058237314224243), 30U);
  EXPECT_EQ(framesOf(0.9999999999999999), 59U);
}

TEST(TovAnimation, HasNoFramesBelowASixtieth) {
  EXPECT_EQ(framesOf(0), 0U);
  EXPECT_EQ(framesOf(0.0166), 0U);
  EXPECT_EQ(framesOf(0.017), 1U);
}

TEST(TovAnimation, HasNoFramesForADurationThatIsNone) {
  EXPECT_EQ(framesOf(-1), 0U);
  EXPECT_EQ(framesOf(-std::numeric_limits<double>::infinity()), 0U);
  EXPECT_EQ(framesOf(std::numeric_limits<double>::quiet_NaN()), 0U);
}

TEST(TovAnimation, HasNoFramesWhenTheyAreTooManyToCount) {
  EXPECT_EQ(framesOf(1e30), 0U);
  EXPECT_EQ(framesOf(std::numeric_limits<double>::max()), 0U);
  EXPECT_EQ(framesOf(std::numeric_limits<double>::infinity()), 0U);
}

TEST(TovAnimation, SamplesAtSixtiethsWhateverTheDuration) {
  TovCustomAnimation animation;
  animation.setAnimationBlock([](double t, double duration) {
    return NSValue::valueWithCGPoint({t, duration});
  });
  animation.setDuration(0.999);
  const NSArrayRef values = animation.values();
  for (std::size_t i = 0; i < 59; ++i) {
    EXPECT_EQ(values->objectAtIndex(i).CGPointValue(),
              (CGPoint{static_cast<double>(i) / 60.0, 0.999}));
  }
}

TEST(TovAnimation, NeverSamplesTheEnd) {
  TovCustomAnimation animation;
  std::vector<double> times;
  animation.setAnimationBlock([&times](double t, double) {
    times.push_back(t);
    return NSValue();
  });
  animation.setDuration(1);
  const NSArrayRef values = animation.values();
  for (const NSValue& value : *values) EXPECT_TRUE(value.isNil());
  ASSERT_EQ(times.size(), 60U);
  EXPECT_EQ(times.front(), 0);
  EXPECT_EQ(times.back(), 59 / 60.0);
}

TEST(TovAnimation, AsksForItsBlockOncePerReadingOfTheValues) {
  Counting animation;
  animation.setDuration(1);
  const NSArrayRef values = animation.values();
  EXPECT_EQ(animation.asked, 1);
  for (std::size_t i = 0; i < 60; ++i) (void)values->objectAtIndex(i);
  EXPECT_EQ(animation.asked, 1);
}

TEST(TovAnimation, ComputesAnElementWheneverItIsReadAndNoneBefore) {
  TovCustomAnimation animation;
  int calls = 0;
  animation.setAnimationBlock([&calls](double, double) {
    ++calls;
    return NSValue();
  });
  animation.setDuration(36000);
  const NSArrayRef values = animation.values();
  EXPECT_EQ(calls, 0);
  (void)values->objectAtIndex(3);
  (void)values->objectAtIndex(3);
  EXPECT_EQ(calls, 2);
}

TEST(TovAnimation, ValuesOnceReadStayAsTheyAre) {
  TovCustomAnimation animation;
  animation.setAnimationBlock(
      [](double, double duration) { return NSValue::numberWithDouble(duration); });
  animation.setDuration(1);
  const NSArrayRef values = animation.values();
  animation.setDuration(2);
  animation.setAnimationBlock(nullptr);
  EXPECT_EQ(values->count(), 60U);
  EXPECT_EQ(values->objectAtIndex(0), NSValue::numberWithDouble(1));
}

TEST(TovAnimation, ValuesOutliveTheAnimation) {
  NSArrayRef values;
  {
    Counting animation;
    animation.setDuration(1);
    values = animation.values();
  }
  EXPECT_EQ(values->objectAtIndex(30), NSValue::numberWithDouble(0.5));
}

TEST(TovAnimation, ValuesCannotBeAssigned) {
  Counting animation;
  animation.setDuration(1);
  CAKeyframeAnimation& host = animation;
  for (const NSArrayRef& values :
       {NSArrayRef(), NSArray::arrayWithObjects({}), NSArray::arrayWithObjects({NSValue()})}) {
    host.setValues(values);
    EXPECT_EQ(host.values()->count(), 60U);
    EXPECT_EQ(host.values()->objectAtIndex(30), NSValue::numberWithDouble(0.5));
  }
}

TEST(TovAnimation, AssigningValuesIsNoChange) {
  Counting animation;
  int told = 0;
  const auto subscription = animation.addObserver("values", [&] { ++told; });
  animation.setValues(nullptr);
  EXPECT_EQ(told, 0);
}

TEST(TovAnimation, ValuesAreComputedThroughTheHostToo) {
  Counting animation;
  animation.setDuration(0.25);
  const CAKeyframeAnimation& host = animation;
  EXPECT_EQ(host.values()->count(), 15U);
}

TEST(TovAnimation, CountsItsFramesWithoutABlock) { EXPECT_EQ(framesOf(0.5), 30U); }

TEST(TovAnimationDeathTest, ReadingAFrameWithoutABlockStops) {
  TovAnimation animation;
  animation.setDuration(1);
  const NSArrayRef values = animation.values();
  EXPECT_DEATH((void)values->objectAtIndex(0), "no block");
}

TEST(TovAnimation, ValuesDependOnBlockAndDuration) {
  const TovAnimation animation;
  EXPECT_THAT(animation.keyPathsForValuesAffectingValueForKey("values"),
              testing::UnorderedElementsAre("animationBlock", "duration"));
  EXPECT_THAT(animation.keyPathsForValuesAffectingValueForKey("animationBlock"),
              testing::IsEmpty());
  EXPECT_THAT(animation.keyPathsForValuesAffectingValueForKey("duration"), testing::IsEmpty());
}

TEST(TovAnimation, ObserversOfTheValuesHearOfTheDuration) {
  TovAnimation animation;
  int told = 0;
  const auto subscription = animation.addObserver("values", [&] { ++told; });
  animation.setDuration(1);
  animation.setKeyPath("opacity");
  EXPECT_EQ(told, 1);
}

TEST(TovAnimation, CopyIsOfItsClassWithTheHostsSettings) {
  TovAnimation animation;
  animation.setKeyPath("opacity");
  animation.setDuration(0.5);
  const auto copy = animation.copy();
  ASSERT_NE(dynamic_cast<TovAnimation*>(copy.get()), nullptr);
  EXPECT_EQ(copy->keyPath(), "opacity");
  EXPECT_EQ(copy->values()->count(), 30U);
}

}  // namespace
}  // namespace kindora
