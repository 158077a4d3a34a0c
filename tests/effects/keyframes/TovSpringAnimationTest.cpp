// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovSpringAnimation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "platform/UIColor.h"
#include "tests/effects/keyframes/Values.h"

namespace kindora {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// From 0 to 1, so that values are progress.
class TovSpringAnimationProgress : public testing::Test {
 protected:
  TovSpringAnimationProgress() {
    spring.setFromValue(number(0));
    spring.setToValue(number(1));
  }
  [[nodiscard]] double at(double t) const { return spring.animationBlock()(t, 1).doubleValue(); }

  TovSpringAnimation spring;
};

TEST(TovSpringAnimation, StartsWithItsDefaults) {
  const TovSpringAnimation spring;
  EXPECT_EQ(spring.damping(), 10);
  EXPECT_EQ(spring.mass(), 1);
  EXPECT_EQ(spring.stiffness(), 100);
  EXPECT_EQ(spring.velocity(), 0);
  EXPECT_FALSE(spring.allowsOverdamping());
  EXPECT_TRUE(spring.fromValue().isNil());
  EXPECT_TRUE(spring.toValue().isNil());
}

TEST_F(TovSpringAnimationProgress, UnderdampedSpringHasItsValues) {
  EXPECT_DOUBLE_EQ(at(1 / 60.0), 0.013118288799532807);
  EXPECT_DOUBLE_EQ(at(0.1), 0.3402998537161456);
}

TEST_F(TovSpringAnimationProgress, CriticallyDampedSpringHasItsValues) {
  spring.setDamping(20);
  EXPECT_DOUBLE_EQ(at(0.1), 0.264241099357605);
}

TEST_F(TovSpringAnimationProgress, OverdampedSpringHasItsValues) {
  spring.setDamping(30);
  spring.setAllowsOverdamping(true);
  EXPECT_DOUBLE_EQ(at(0.1), 0.2133543855208483);
}

TEST_F(TovSpringAnimationProgress, ShootsOverItsGoalWhenUnderdamped) {
  EXPECT_DOUBLE_EQ(at(0.5), 1.0745905487868905);
}

TEST_F(TovSpringAnimationProgress, DampingBeyondTheCriticalOneCountsAsCritical) {
  spring.setDamping(20);
  const TovAnimationBlock critical = spring.animationBlock();
  spring.setDamping(30);
  for (const double t : {0.0, 0.1, 0.37, 2.0}) EXPECT_EQ(at(t), critical(t, 1).doubleValue());
  EXPECT_EQ(spring.damping(), 30);
}

TEST_F(TovSpringAnimationProgress, DampingIsComparedWithTheFrequencyInSinglePrecision) {
  // The float root of 5 lies above the true one, which is therefore below the critical damping.
  spring.setStiffness(5);
  spring.setDamping(2 * std::sqrt(5.0));
  const double frequency = std::sqrt(5.0F);
  const double decay = std::sqrt(5.0);
  ASSERT_LT(decay, frequency);
  const float omega = std::sqrt(static_cast<float>(frequency * frequency - decay * decay));
  ASSERT_GT(omega, 0);
  const double t = 3;
  const double expected =
      static_cast<double>(std::exp(static_cast<float>(-decay * t))) *
          (-1.0 * std::cos(static_cast<float>(omega * t)) +
           ((decay * -1 + 0) / omega) * std::sin(static_cast<float>(omega * t))) +
      1;
  EXPECT_DOUBLE_EQ(at(t), expected);
}

TEST_F(TovSpringAnimationProgress, StartsAtZeroInEveryRegimeWhateverTheVelocity) {
  for (const double damping : {1.0, 10.0, 20.0, 30.0}) {
    for (const double velocity : {-50.0, 0.0, 3.0, 1e6}) {
      spring.setDamping(damping);
      spring.setVelocity(velocity);
      spring.setAllowsOverdamping(damping > 20);
      EXPECT_EQ(at(0), 0);
    }
  }
}

TEST_F(TovSpringAnimationProgress, VelocityIsTheSlopeAtTheStartTowardsTheGoal) {
  for (const double damping : {10.0, 20.0, 30.0}) {
    spring.setDamping(damping);
    spring.setAllowsOverdamping(true);
    spring.setVelocity(5);
    EXPECT_NEAR(at(1e-3) / 1e-3, 5, 0.2);
    spring.setVelocity(-5);
    EXPECT_NEAR(at(1e-3) / 1e-3, -5, 0.2);
  }
}

TEST_F(TovSpringAnimationProgress, DurationHasNoSay) {
  const TovAnimationBlock block = spring.animationBlock();
  EXPECT_EQ(block(0.3, 1), block(0.3, 99));
}

TEST_F(TovSpringAnimationProgress, BlockKeepsTheSettingsOfItsTime) {
  const TovAnimationBlock before = spring.animationBlock();
  const NSValue value = before(0.1, 1);
  spring.setDamping(3);
  spring.setStiffness(7);
  spring.setToValue(number(100));
  EXPECT_EQ(before(0.1, 1), value);
  EXPECT_NE(spring.animationBlock()(0.1, 1), value);
}

TEST_F(TovSpringAnimationProgress, OneSecondIsSixtyFramesFromTheStartToAFrameBeforeTheEnd) {
  spring.setDuration(1);
  const NSArrayRef values = spring.values();
  ASSERT_EQ(values->count(), 60U);
  EXPECT_EQ(values->objectAtIndex(0), spring.fromValue());
  EXPECT_EQ(values->objectAtIndex(59).doubleValue(), at(59 / 60.0));
}

TEST_F(TovSpringAnimationProgress, DurationForItsOwnEpsilonIsAFrameShort) {
  spring.setDuration(spring.durationForEpsilon(0.01));
  EXPECT_EQ(spring.duration(), 0.9999999999999999);
  EXPECT_EQ(spring.values()->count(), 59U);
}

TEST_F(TovSpringAnimationProgress, OverflowOfAnOverdampedSpringIsHandedOn) {
  spring.setDamping(1000);
  spring.setAllowsOverdamping(true);
  EXPECT_FALSE(std::isfinite(at(10)));
}

TEST(TovSpringAnimation, MovesGeometryAndNotOnlyNumbers) {
  TovSpringAnimation spring;
  spring.setFromValue(NSValue::valueWithCATransform3D(CATransform3DMakeScale(1.2, 1.2, 1)));
  spring.setToValue(NSValue::valueWithCATransform3D(CATransform3DIdentity));
  const CATransform3D value = spring.animationBlock()(0.5, 1).CATransform3DValue();
  EXPECT_NEAR(value.m11, 1.2 - 0.2 * 1.0745905487868905, 1e-12);
  EXPECT_EQ(value.m33, 1);
  EXPECT_EQ(value.m44, 1);
}

TEST(TovSpringAnimationDuration, IsTheFirstSumOfTenthsBelowEpsilon) {
  EXPECT_EQ(TovSpringAnimation().durationForEpsilon(0.01), 0.9999999999999999);
}

TEST(TovSpringAnimationDuration, IsZeroForAnEpsilonAboveOne) {
  TovSpringAnimation spring;
  EXPECT_EQ(spring.durationForEpsilon(1.0000001), 0);
  EXPECT_EQ(spring.durationForEpsilon(std::numeric_limits<double>::infinity()), 0);
  spring.setDamping(-1);
  EXPECT_EQ(spring.durationForEpsilon(2), 0);
}

TEST(TovSpringAnimationDuration, IsATenthForAnEpsilonOfOne) {
  EXPECT_EQ(TovSpringAnimation().durationForEpsilon(1), 0.1);
}

TEST(TovSpringAnimationDuration, KnowsNothingOfStiffnessVelocityAndCriticalDamping) {
  TovSpringAnimation spring;
  spring.setDamping(30);
  const double expected = spring.durationForEpsilon(0.001);
  // e^(-15 t) is below 0.001 from 0.4605 on.
  EXPECT_EQ(expected, 0.1 + 0.1 + 0.1 + 0.1 + 0.1);
  spring.setStiffness(1);
  spring.setVelocity(9);
  spring.setAllowsOverdamping(true);
  EXPECT_EQ(spring.durationForEpsilon(0.001), expected);
}

TEST(TovSpringAnimationDuration, DependsOnTheMass) {
  TovSpringAnimation spring;
  spring.setMass(2);
  // e^(-2.5 t) is below 0.01 from 1.842 on.
  EXPECT_NEAR(spring.durationForEpsilon(0.01), 1.9, 1e-12);
}

TEST(TovSpringAnimationDuration, IsZeroWhereNoTimeWouldDo) {
  TovSpringAnimation spring;
  for (const double epsilon : {0.0, -1.0, kNaN}) EXPECT_EQ(spring.durationForEpsilon(epsilon), 0);
  for (const double damping : {0.0, -5.0, kNaN}) {
    spring.setDamping(damping);
    EXPECT_EQ(spring.durationForEpsilon(1), 0);
    EXPECT_EQ(spring.durationForEpsilon(0.01), 0);
  }
}

TEST(TovSpringAnimationDuration, EndsForTheSmallestEpsilon) {
  EXPECT_NEAR(TovSpringAnimation().durationForEpsilon(std::numeric_limits<double>::denorm_min()),
              20.8, 0.11);
}

RC_GTEST_PROP(TovSpringAnimationDurationProperty, IsTheFirstTenthBelow, ()) {
  TovSpringAnimation spring;
  const double damping = *rc::gen::inRange(1, 500) / 10.0;
  const double mass = *rc::gen::inRange(1, 50) / 10.0;
  const double epsilon = *rc::gen::inRange(1, 1001) / 1000.0;
  spring.setDamping(damping);
  spring.setMass(mass);
  const auto envelope = [&](double t) {
    return static_cast<double>(std::exp(static_cast<float>(-(damping / (2 * mass)) * t)));
  };
  double before = 0;
  double t = 0.1;
  while (envelope(t) >= epsilon) {
    before = t;
    t += 0.1;
  }
  RC_ASSERT(spring.durationForEpsilon(epsilon) == t);
  RC_ASSERT(envelope(before) >= epsilon);
}

RC_GTEST_PROP(TovSpringAnimationProperty, StaysCloseToTheExactSolution, ()) {
  TovSpringAnimation spring;
  const double damping = *rc::gen::inRange(1, 80);
  const double stiffness = *rc::gen::inRange(20, 400);
  const double velocity = *rc::gen::inRange(-20, 21);
  const double t = *rc::gen::inRange(0, 100) / 60.0;
  spring.setDamping(damping);
  spring.setStiffness(stiffness);
  spring.setVelocity(velocity);
  spring.setAllowsOverdamping(true);
  spring.setFromValue(number(0));
  spring.setToValue(number(1));
  // Small explicit steps of x'' = -stiffness x - damping x' with midpoints.
  constexpr int kSteps = 20000;
  const double h = t / kSteps;
  double x = -1;
  double v = velocity;
  const auto pull = [&](double at, double speed) { return -stiffness * at - damping * speed; };
  for (int i = 0; i < kSteps; ++i) {
    const double middleX = x + v * h / 2;
    const double middleV = v + pull(x, v) * h / 2;
    x += middleV * h;
    v += pull(middleX, middleV) * h;
  }
  RC_ASSERT(std::abs(spring.animationBlock()(t, 1).doubleValue() - (x + 1)) < 1e-3);
}

TEST(TovSpringAnimation, BlockDependsOnSevenKeysTwoOfThemShort) {
  const TovSpringAnimation spring;
  EXPECT_THAT(spring.keyPathsForValuesAffectingValueForKey("animationBlock"),
              testing::UnorderedElementsAre("damping", "mass", "stiffness", "velocity", "from",
                                            "to", "allowsOverdamping"));
  EXPECT_THAT(spring.keyPathsForValuesAffectingValueForKey("values"),
              testing::UnorderedElementsAre("animationBlock", "duration"));
}

TEST(TovSpringAnimation, ObserversOfTheValuesHearOfAllThatShapesThemButTheEnds) {
  TovSpringAnimation spring;
  int values = 0;
  int block = 0;
  int ends = 0;
  const auto first = spring.addObserver("values", [&] { ++values; });
  const auto second = spring.addObserver("animationBlock", [&] { ++block; });
  const auto third = spring.addObserver("fromValue", [&] { ++ends; });
  const auto fourth = spring.addObserver("toValue", [&] { ++ends; });
  spring.setFromValue(number(0));
  spring.setToValue(number(1));
  EXPECT_EQ(values, 0);
  EXPECT_EQ(block, 0);
  EXPECT_EQ(ends, 2);
  const std::function<void()> changes[] = {
      [&] { spring.setDamping(1); }, [&] { spring.setMass(2); }, [&] { spring.setStiffness(3); },
      [&] { spring.setVelocity(4); }, [&] { spring.setAllowsOverdamping(true); }};
  int expected = 0;
  for (const auto& change : changes) {
    change();
    ++expected;
    EXPECT_EQ(values, expected);
    EXPECT_EQ(block, expected);
  }
  spring.setDuration(1);
  EXPECT_EQ(values, expected + 1);
  EXPECT_EQ(block, expected);
}

TEST(TovSpringAnimation, CopyHasTheHostsAndItsOwnSettingsAndSharesItsEnds) {
  TovSpringAnimation spring;
  spring.setKeyPath("transform");
  spring.setDuration(0.5);
  spring.setDamping(1);
  spring.setMass(2);
  spring.setStiffness(3);
  spring.setVelocity(4);
  spring.setFromValue(color(UIColor::blackColor()));
  spring.setToValue(color(UIColor::whiteColor()));
  spring.setAllowsOverdamping(true);
  const CAKeyframeAnimation& host = spring;
  const auto copy = std::dynamic_pointer_cast<TovSpringAnimation>(host.copy());
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->keyPath(), "transform");
  EXPECT_EQ(copy->duration(), 0.5);
  EXPECT_EQ(copy->damping(), 1);
  EXPECT_EQ(copy->mass(), 2);
  EXPECT_EQ(copy->stiffness(), 3);
  EXPECT_EQ(copy->velocity(), 4);
  EXPECT_EQ(copy->fromValue().object(), spring.fromValue().object());
  EXPECT_EQ(copy->toValue().object(), spring.toValue().object());
  EXPECT_TRUE(copy->allowsOverdamping());
  copy->setDamping(9);
  EXPECT_EQ(spring.damping(), 1);
}

}  // namespace
}  // namespace kindora
