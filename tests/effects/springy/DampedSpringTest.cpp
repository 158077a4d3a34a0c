// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/DampedSpring.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <numbers>

namespace kindora {
namespace {

TEST(DampedSpring, FollowsTheDampedCosine) {
  constexpr double kFrequency = 1;
  constexpr double kDamping = 0.8F;
  const double w = 2 * std::numbers::pi * kFrequency;
  const double swing = w * std::sqrt(1 - kDamping * kDamping);
  for (const double t : {0.01, 0.1, 0.5, 1.0}) {
    const double expected = 20 * std::exp(-kDamping * w * t) *
                            (std::cos(swing * t) + kDamping * w / swing * std::sin(swing * t));
    EXPECT_NEAR(DampedSpring(kFrequency, kDamping, t).after({20, 0}).displacement, expected, 1e-12);
  }
}

TEST(DampedSpring, SwingsForEverWithoutDamping) {
  const SpringState state = DampedSpring(2, 0, 0.5).after({7, 3});
  EXPECT_NEAR(state.displacement, 7, 1e-12);
  EXPECT_NEAR(state.velocity, 3, 1e-10);
}

TEST(DampedSpring, ApproachesMonotonicallyWhenCriticallyDamped) {
  double before = 10;
  for (int i = 1; i < 40; ++i) {
    const double now = DampedSpring(1, 1, i / 20.0).after({10, 0}).displacement;
    EXPECT_LT(now, before);
    EXPECT_GT(now, 0);
    before = now;
  }
}

TEST(DampedSpring, IsContinuousAtTheCriticalDamping) {
  const SpringState below = DampedSpring(1, 0.999999, 0.3).after({10, -4});
  const SpringState at = DampedSpring(1, 1, 0.3).after({10, -4});
  const SpringState above = DampedSpring(1, 1.000001, 0.3).after({10, -4});
  EXPECT_NEAR(below.displacement, at.displacement, 1e-4);
  EXPECT_NEAR(above.displacement, at.displacement, 1e-4);
  EXPECT_NEAR(below.velocity, at.velocity, 1e-3);
  EXPECT_NEAR(above.velocity, at.velocity, 1e-3);
}

TEST(DampedSpring, LongTimeBringsItToRest) {
  for (const double damping : {0.3, 0.8, 1.0, 3.0, 50.0}) {
    const SpringState state = DampedSpring(1, damping, 1e4).after({1000, 1000});
    EXPECT_NEAR(state.displacement, 0, 1e-9);
    EXPECT_NEAR(state.velocity, 0, 1e-9);
  }
}

RC_GTEST_PROP(DampedSpringProperty, ManyShortSpansComeToOneLong, ()) {
  const double frequency = *rc::gen::inRange(1, 50) / 10.0;
  const double damping = *rc::gen::inRange(0, 30) / 10.0;
  const int steps = *rc::gen::inRange(1, 240);
  const double span = *rc::gen::inRange(1, 100) / 1000.0;
  const SpringState start{static_cast<double>(*rc::gen::inRange(-100, 101)),
                          static_cast<double>(*rc::gen::inRange(-500, 501))};
  const DampedSpring step(frequency, damping, span);
  SpringState state = start;
  for (int i = 0; i < steps; ++i) state = step.after(state);
  const SpringState whole = DampedSpring(frequency, damping, span * steps).after(start);
  RC_ASSERT(std::abs(state.displacement - whole.displacement) < 1e-7);
  RC_ASSERT(std::abs(state.velocity - whole.velocity) < 1e-5);
}

}  // namespace
}  // namespace kindora
