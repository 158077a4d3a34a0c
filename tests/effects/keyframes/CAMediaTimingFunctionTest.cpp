// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/CAMediaTimingFunction.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace kindora {
namespace {

TEST(CAMediaTimingFunction, BeginsAtZeroAndEndsAtOne) {
  const auto ease = CAMediaTimingFunction::easeIn();
  EXPECT_EQ(ease.valueAt(0), 0);
  EXPECT_EQ(ease.valueAt(1), 1);
}

TEST(CAMediaTimingFunction, StandsStillOutsideItsTime) {
  const auto ease = CAMediaTimingFunction::easeIn();
  EXPECT_EQ(ease.valueAt(-0.5), 0);
  EXPECT_EQ(ease.valueAt(1.5), 1);
  EXPECT_EQ(ease.valueAt(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(CAMediaTimingFunction, EaseInHasItsControlPoints) {
  EXPECT_EQ(CAMediaTimingFunction::easeIn(), CAMediaTimingFunction({0.42, 0}, {1, 1}));
}

TEST(CAMediaTimingFunction, EaseInLagsBehind) {
  const auto ease = CAMediaTimingFunction::easeIn();
  // Half the curve parameter: x = 3/8 * 0.42 + 3/8 + 1/8, y = 3/8 + 1/8.
  EXPECT_NEAR(ease.valueAt(0.6575), 0.5, 1e-12);
  EXPECT_LT(ease.valueAt(0.1), 0.02);
}

TEST(CAMediaTimingFunction, StraightControlPointsChangeNothing) {
  const CAMediaTimingFunction straight({1.0 / 3, 1.0 / 3}, {2.0 / 3, 2.0 / 3});
  for (int i = 0; i <= 100; ++i) EXPECT_NEAR(straight.valueAt(i / 100.0), i / 100.0, 1e-12);
}

RC_GTEST_PROP(CAMediaTimingFunctionProperty, GoesThroughEveryPointOfItsCurve, ()) {
  const auto part = [] { return *rc::gen::inRange(0, 1001) / 1000.0; };
  const CGPoint c1{part(), part() * 3 - 1};
  const CGPoint c2{part(), part() * 3 - 1};
  const double t = part();
  const auto curve = [t](double a, double b) {
    return 3 * (1 - t) * (1 - t) * t * a + 3 * (1 - t) * t * t * b + t * t * t;
  };
  // Where the curve stands upright, a hair's breadth of time is a good part of the way.
  RC_PRE(c1.x < 0.99 || c2.x > 0.01);
  RC_ASSERT(std::abs(CAMediaTimingFunction(c1, c2).valueAt(curve(c1.x, c2.x)) - curve(c1.y, c2.y)) <
            1e-4);
}

RC_GTEST_PROP(CAMediaTimingFunctionProperty, NeverGoesBackWhenTheControlPointsDoNot, ()) {
  const auto part = [] { return *rc::gen::inRange(0, 1001) / 1000.0; };
  const CAMediaTimingFunction function({part(), part()}, {part(), part()});
  double before = 0;
  for (int i = 0; i <= 50; ++i) {
    const double now = function.valueAt(i / 50.0);
    RC_ASSERT(now >= before - 1e-12);
    RC_ASSERT(now <= 1);
    before = now;
  }
}

}  // namespace
}  // namespace kindora
