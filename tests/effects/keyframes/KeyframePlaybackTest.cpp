// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/KeyframePlayback.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>

#include "effects/keyframes/TovCustomAnimation.h"
#include "effects/keyframes/TovSpringAnimation.h"
#include "platform/UIColor.h"
#include "tests/effects/keyframes/Values.h"

namespace kindora {
namespace {

// Frames 0, 10 and 40 over two seconds.
CAKeyframeAnimation& threeFrames(CAKeyframeAnimation& animation) {
  animation.setDuration(2);
  animation.setValues(NSArray::arrayWithObjects({number(0), number(10), number(40)}));
  return animation;
}

double at(const CAKeyframeAnimation& animation, double elapsed) {
  const NSValue value = KeyframePlayback(animation).valueAt(elapsed);
  EXPECT_TRUE(value.isNumber());
  return value.doubleValue();
}

TEST(KeyframePlayback, SpreadsTheFramesEvenlyOverTheDuration) {
  CAKeyframeAnimation animation;
  threeFrames(animation);
  EXPECT_EQ(at(animation, 0), 0);
  EXPECT_EQ(at(animation, 0.5), 5);
  EXPECT_EQ(at(animation, 1), 10);
  EXPECT_EQ(at(animation, 1.5), 25);
  EXPECT_NEAR(at(animation, 1.999999), 40, 1e-3);
}

TEST(KeyframePlayback, SpreadsComputedFramesToTheVeryEnd) {
  TovCustomAnimation animation;
  animation.setAnimationBlock([](double t, double) { return number(t); });
  animation.setDuration(1);
  const KeyframePlayback playback(animation);
  for (int i = 0; i < 60; ++i) {
    EXPECT_NEAR(playback.valueAt(i / 59.0 * (1 - 1e-12)).doubleValue(), i / 60.0, 1e-9);
  }
}

TEST(KeyframePlayback, ShowsNothingOfItsOwnAfterTheEnd) {
  CAKeyframeAnimation animation;
  const KeyframePlayback playback(threeFrames(animation));
  EXPECT_EQ(playback.length(), 2);
  EXPECT_FALSE(playback.isFinishedAt(1.999));
  EXPECT_TRUE(playback.isFinishedAt(2));
  EXPECT_TRUE(playback.valueAt(2).isNil());
  EXPECT_TRUE(playback.valueAt(100).isNil());
}

TEST(KeyframePlayback, StaysAtTheEndWhenItFillsForwardsAndIsKept) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setFillMode(CAMediaTimingFillMode::forwards);
  animation.setRemovedOnCompletion(false);
  EXPECT_EQ(at(animation, 2), 40);
  EXPECT_EQ(at(animation, 100), 40);
  EXPECT_TRUE(KeyframePlayback(animation).isFinishedAt(2));
}

TEST(KeyframePlayback, FillsNothingWhenItIsRemoved) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setFillMode(CAMediaTimingFillMode::forwards);
  EXPECT_TRUE(KeyframePlayback(animation).valueAt(2).isNil());
}

TEST(KeyframePlayback, FillsNothingWhenItIsKeptWithoutAFillMode) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setRemovedOnCompletion(false);
  EXPECT_TRUE(KeyframePlayback(animation).valueAt(2).isNil());
}

TEST(KeyframePlayback, WithoutFramesIsFinishedAtOnceAndShowsNothing) {
  TovSpringAnimation spring;
  spring.setDuration(0.016);
  spring.setFillMode(CAMediaTimingFillMode::forwards);
  spring.setRemovedOnCompletion(false);
  const KeyframePlayback playback(spring);
  EXPECT_EQ(playback.length(), 0);
  EXPECT_TRUE(playback.isFinishedAt(0));
  EXPECT_TRUE(playback.valueAt(0).isNil());
}

TEST(KeyframePlayback, WithoutValuesIsFinishedAtOnce) {
  CAKeyframeAnimation animation;
  animation.setDuration(1);
  EXPECT_TRUE(KeyframePlayback(animation).isFinishedAt(0));
  EXPECT_TRUE(KeyframePlayback(animation).valueAt(0).isNil());
}

TEST(KeyframePlayback, SingleFrameStandsForTheWholeDuration) {
  CAKeyframeAnimation animation;
  animation.setDuration(1);
  animation.setValues(NSArray::arrayWithObjects({number(7)}));
  EXPECT_EQ(at(animation, 0), 7);
  EXPECT_EQ(at(animation, 0.999), 7);
  EXPECT_TRUE(KeyframePlayback(animation).isFinishedAt(1));
}

TEST(KeyframePlayback, TwoFramesAreTheTwoEnds) {
  CAKeyframeAnimation animation;
  animation.setDuration(1);
  animation.setValues(NSArray::arrayWithObjects({number(0), number(8)}));
  EXPECT_EQ(at(animation, 0.25), 2);
}

TEST(KeyframePlayback, WithoutDurationIsFinishedAtOnce) {
  CAKeyframeAnimation animation;
  threeFrames(animation);
  for (const double duration : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    animation.setDuration(duration);
    EXPECT_TRUE(KeyframePlayback(animation).isFinishedAt(0));
    EXPECT_TRUE(KeyframePlayback(animation).valueAt(0).isNil());
  }
}

TEST(KeyframePlayback, BeforeItsStartIsAtItsStart) {
  CAKeyframeAnimation animation;
  EXPECT_EQ(at(threeFrames(animation), -1), 0);
}

TEST(KeyframePlayback, TakesItsValuesOnceAndKeepsThem) {
  class Asked final : public CAKeyframeAnimation {
   public:
    [[nodiscard]] NSArrayRef values() const override {
      ++times;
      return CAKeyframeAnimation::values();
    }
    mutable int times = 0;
  };
  Asked animation;
  threeFrames(animation);
  const KeyframePlayback playback(animation);
  animation.setValues(nullptr);
  animation.setDuration(9);
  animation.setTimingFunction(CAMediaTimingFunction::easeIn());
  EXPECT_EQ(playback.valueAt(1.5), number(25));
  EXPECT_EQ(playback.length(), 2);
  EXPECT_EQ(animation.times, 1);
}

TEST(KeyframePlayback, RunsAtThePaceOfItsTimingFunction) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setTimingFunction(CAMediaTimingFunction::easeIn());
  const double way = CAMediaTimingFunction::easeIn().valueAt(0.25);
  EXPECT_NEAR(at(animation, 0.5), way * 2 * 10, 1e-12);
}

TEST(KeyframePlayback, PaceThatLeavesTheWayStaysWithinTheFrames) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setTimingFunction(CAMediaTimingFunction({0.5, -2}, {0.5, 3}));
  for (int i = 0; i < 200; ++i) {
    const double value = at(animation, i / 100.0);
    EXPECT_GE(value, 0);
    EXPECT_LE(value, 40);
  }
}

TEST(KeyframePlayback, RepeatsAsOftenAsItIsTo) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setRepeatCount(3);
  EXPECT_EQ(KeyframePlayback(animation).length(), 6);
  EXPECT_EQ(at(animation, 2), 0);
  EXPECT_EQ(at(animation, 5), 10);
  EXPECT_TRUE(KeyframePlayback(animation).isFinishedAt(6));
}

TEST(KeyframePlayback, RepeatCountOfOneIsOneRunAndSoIsNone) {
  CAKeyframeAnimation animation;
  threeFrames(animation);
  EXPECT_EQ(KeyframePlayback(animation).length(), 2);
  animation.setRepeatCount(1);
  EXPECT_EQ(KeyframePlayback(animation).length(), 2);
}

TEST(KeyframePlayback, StaysWhereALastPartOfARunHasEnded) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setRepeatCount(1.5);
  animation.setFillMode(CAMediaTimingFillMode::forwards);
  animation.setRemovedOnCompletion(false);
  EXPECT_EQ(KeyframePlayback(animation).length(), 3);
  EXPECT_EQ(at(animation, 10), 10);
}

TEST(KeyframePlayback, MayRunForEver) {
  CAKeyframeAnimation animation;
  threeFrames(animation).setRepeatCount(std::numeric_limits<double>::infinity());
  EXPECT_FALSE(KeyframePlayback(animation).isFinishedAt(1e9));
  EXPECT_EQ(at(animation, 1e9 + 1), 10);
}

TEST(KeyframePlayback, CubicCalculationGoesSmoothlyThroughEveryFrame) {
  CAKeyframeAnimation animation;
  animation.setDuration(3);
  animation.setCalculationMode(CAAnimationCalculationMode::cubic);
  animation.setValues(NSArray::arrayWithObjects({number(0), number(10), number(40), number(30)}));
  EXPECT_EQ(at(animation, 1), 10);
  EXPECT_EQ(at(animation, 2), 40);
  // Catmull-Rom halfway between the inner frames: (-p0 + 9 p1 + 9 p2 - p3) / 16.
  EXPECT_NEAR(at(animation, 1.5), (-0 + 90 + 360 - 30) / 16.0, 1e-12);
  // The slope on both sides of a frame is that between its neighbours.
  constexpr double kStep = 1e-5;
  EXPECT_NEAR((at(animation, 1 + kStep) - 10) / kStep, 20, 1e-2);
  EXPECT_NEAR((10 - at(animation, 1 - kStep)) / kStep, 20, 1e-2);
}

TEST(KeyframePlayback, CubicCalculationStaysOnAStraightLine) {
  CAKeyframeAnimation animation;
  animation.setDuration(4);
  animation.setCalculationMode(CAAnimationCalculationMode::cubic);
  animation.setValues(
      NSArray::arrayWithObjects({number(0), number(10), number(20), number(30), number(40)}));
  EXPECT_NEAR(at(animation, 1.3), 13, 1e-12);
  EXPECT_NEAR(at(animation, 2.8), 28, 1e-12);
}

TEST(KeyframePlayback, PlaysGeometry) {
  CAKeyframeAnimation animation;
  animation.setDuration(1);
  animation.setValues(
      NSArray::arrayWithObjects({NSValue::valueWithCATransform3D(CATransform3DMakeScale(2, 2, 1)),
                                 NSValue::valueWithCATransform3D(CATransform3DIdentity)}));
  EXPECT_EQ(KeyframePlayback(animation).valueAt(0.5).CATransform3DValue(),
            CATransform3DMakeScale(1.5, 1.5, 1));
}

TEST(KeyframePlayback, ShowsOneOrTheOtherOfWhatDoesNotBlend) {
  const NSValue black =
      NSValue::valueWithObject(std::make_shared<const UIColor>(UIColor::blackColor()));
  const NSValue white =
      NSValue::valueWithObject(std::make_shared<const UIColor>(UIColor::whiteColor()));
  CAKeyframeAnimation animation;
  animation.setDuration(1);
  animation.setValues(NSArray::arrayWithObjects({black, white}));
  for (const auto mode : {CAAnimationCalculationMode::linear, CAAnimationCalculationMode::cubic}) {
    animation.setCalculationMode(mode);
    EXPECT_EQ(KeyframePlayback(animation).valueAt(0.4), black);
    EXPECT_EQ(KeyframePlayback(animation).valueAt(0.6), white);
  }
}

// The flight of a medal: an arc without a key path that stays where it ends.
class KeyframePlaybackFlight : public testing::Test {
 protected:
  KeyframePlaybackFlight() {
    path->moveToPoint({100, 400});
    path->addQuadCurveToPoint({300, 600}, {200, 300});
    flight.setPath(path);
    flight.setDuration(1);
    flight.setRepeatCount(1);
    flight.setFillMode(CAMediaTimingFillMode::forwards);
    flight.setRemovedOnCompletion(false);
    flight.setCalculationMode(CAAnimationCalculationMode::cubic);
    flight.setTimingFunction(CAMediaTimingFunction::easeIn());
  }
  std::shared_ptr<UIBezierPath> path = std::make_shared<UIBezierPath>();
  CAKeyframeAnimation flight;
};

TEST_F(KeyframePlaybackFlight, FollowsThePathAtItsPace) {
  const KeyframePlayback playback(flight);
  EXPECT_EQ(playback.length(), 1);
  for (int i = 0; i < 60; ++i) {
    const double t = i / 60.0;
    const CGPoint expected = *path->pointAt(CAMediaTimingFunction::easeIn().valueAt(t));
    EXPECT_EQ(playback.valueAt(t), NSValue::valueWithCGPoint(expected));
  }
}

TEST_F(KeyframePlaybackFlight, RisesBeforeItFalls) {
  const KeyframePlayback playback(flight);
  double top = 400;
  for (int i = 0; i < 60; ++i) {
    top = std::min(top, playback.valueAt(i / 60.0).CGPointValue().y);
  }
  // The curve with its control point at 300 rises to 375 only.
  EXPECT_NEAR(top, 375, 0.5);
}

TEST_F(KeyframePlaybackFlight, StaysWhereItLands) {
  const KeyframePlayback playback(flight);
  EXPECT_TRUE(playback.isFinishedAt(1));
  EXPECT_EQ(playback.valueAt(1), NSValue::valueWithCGPoint({300, 600}));
  EXPECT_EQ(playback.valueAt(2), NSValue::valueWithCGPoint({300, 600}));
}

TEST_F(KeyframePlaybackFlight, LaterStrokesOfThePathDoNotReachIt) {
  const KeyframePlayback playback(flight);
  path->addQuadCurveToPoint({900, 900}, {800, 800});
  EXPECT_EQ(playback.valueAt(1), NSValue::valueWithCGPoint({300, 600}));
}

TEST_F(KeyframePlaybackFlight, PathComesBeforeValues) {
  flight.setValues(NSArray::arrayWithObjects({number(1), number(2)}));
  EXPECT_EQ(KeyframePlayback(flight).valueAt(0), NSValue::valueWithCGPoint({100, 400}));
}

TEST_F(KeyframePlaybackFlight, EmptyPathIsFinishedAtOnce) {
  flight.setPath(std::make_shared<UIBezierPath>());
  const KeyframePlayback playback(flight);
  EXPECT_TRUE(playback.isFinishedAt(0));
  EXPECT_TRUE(playback.valueAt(0).isNil());
}

TEST(KeyframePlayback, RemovedSpringEndsOnThePropertysOwnValue) {
  TovSpringAnimation spring;
  spring.setFromValue(number(0));
  spring.setToValue(number(1));
  spring.setDuration(1);
  const KeyframePlayback playback(spring);
  EXPECT_NE(playback.valueAt(0.999999), number(1));
  EXPECT_TRUE(playback.valueAt(1).isNil());
}

}  // namespace
}  // namespace kindora
