// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/UIBezierPath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace kindora {
namespace {

double distance(CGPoint a, CGPoint b) { return std::hypot(a.x - b.x, a.y - b.y); }

UIBezierPath curve(CGPoint start, CGPoint control, CGPoint end) {
  UIBezierPath path;
  path.moveToPoint(start);
  path.addQuadCurveToPoint(end, control);
  return path;
}

void expectNear(const std::optional<CGPoint>& actual, CGPoint expected, double tolerance = 1e-9) {
  ASSERT_TRUE(actual.has_value());
  EXPECT_NEAR(actual->x, expected.x, tolerance);
  EXPECT_NEAR(actual->y, expected.y, tolerance);
}

TEST(UIBezierPath, RemembersItsCurves) {
  const UIBezierPath path = curve({100, 400}, {200, 300}, {300, 600});
  EXPECT_THAT(path.curves(),
              testing::ElementsAre(UIBezierPath::QuadCurve{{100, 400}, {200, 300}, {300, 600}}));
  EXPECT_EQ(path.currentPoint(), (CGPoint{300, 600}));
}

TEST(UIBezierPath, BeginsAndEndsAtItsEnds) {
  const UIBezierPath path = curve({100, 400}, {200, 300}, {300, 600});
  EXPECT_EQ(path.pointAt(0), (CGPoint{100, 400}));
  EXPECT_EQ(path.pointAt(1), (CGPoint{300, 600}));
}

TEST(UIBezierPath, StaysAtItsEndsOutsideTheFraction) {
  const UIBezierPath path = curve({100, 400}, {200, 300}, {300, 600});
  EXPECT_EQ(path.pointAt(-1), (CGPoint{100, 400}));
  EXPECT_EQ(path.pointAt(2), (CGPoint{300, 600}));
  EXPECT_EQ(path.pointAt(std::numeric_limits<double>::infinity()), (CGPoint{300, 600}));
}

TEST(UIBezierPath, MiddleOfASymmetricArcIsItsTop) {
  expectNear(curve({0, 0}, {50, -100}, {100, 0}).pointAt(0.5), {50, -50});
}

TEST(UIBezierPath, MeasuresAParabola) {
  // y = x^2 from 0 to 1.
  const double expected = (2 * std::sqrt(5.0) + std::asinh(2.0)) / 4;
  EXPECT_NEAR(curve({0, 0}, {0.5, 0}, {1, 1}).length(), expected, 1e-14);
}

TEST(UIBezierPath, StraightLineIsWalkedEvenlyWhereverItsControlPointIs) {
  for (const double control : {30.0, 50.0, 50.001, 80.0}) {
    const UIBezierPath path = curve({0, 0}, {control, 0}, {100, 0});
    EXPECT_NEAR(path.length(), 100, 1e-9);
    for (int i = 0; i <= 10; ++i) expectNear(path.pointAt(i / 10.0), {i * 10.0, 0}, 1e-7);
  }
}

TEST(UIBezierPath, LineThatTurnsBackIsWalkedBothWays) {
  // Up to 50 and back to 0.
  const UIBezierPath path = curve({0, 0}, {100, 0}, {0, 0});
  EXPECT_NEAR(path.length(), 100, 1e-9);
  expectNear(path.pointAt(0.25), {25, 0});
  expectNear(path.pointAt(0.5), {50, 0}, 1e-6);
  expectNear(path.pointAt(0.75), {25, 0});
}

TEST(UIBezierPath, SeveralCurvesShareTheWayByTheirLength) {
  UIBezierPath path;
  path.moveToPoint({0, 0});
  path.addQuadCurveToPoint({10, 0}, {5, 0});
  path.addQuadCurveToPoint({10, 30}, {10, 15});
  EXPECT_NEAR(path.length(), 40, 1e-12);
  expectNear(path.pointAt(0.125), {5, 0});
  expectNear(path.pointAt(0.25), {10, 0});
  expectNear(path.pointAt(0.5), {10, 10});
}

TEST(UIBezierPath, LeapTakesNoTime) {
  UIBezierPath path;
  path.moveToPoint({0, 0});
  path.addQuadCurveToPoint({10, 0}, {5, 0});
  path.moveToPoint({1000, 0});
  path.addQuadCurveToPoint({1010, 0}, {1005, 0});
  EXPECT_NEAR(path.length(), 20, 1e-12);
  expectNear(path.pointAt(0.25), {5, 0});
  expectNear(path.pointAt(0.75), {1005, 0});
}

TEST(UIBezierPath, EmptyPathIsNowhere) {
  EXPECT_EQ(UIBezierPath().pointAt(0.5), std::nullopt);
  EXPECT_EQ(UIBezierPath().currentPoint(), std::nullopt);
  EXPECT_EQ(UIBezierPath().length(), 0);
}

TEST(UIBezierPath, PathWithoutLengthIsAtItsPoint) {
  UIBezierPath path;
  path.moveToPoint({3, 4});
  EXPECT_EQ(path.pointAt(0.5), (CGPoint{3, 4}));
  path.addQuadCurveToPoint({3, 4}, {3, 4});
  EXPECT_EQ(path.pointAt(0.5), (CGPoint{3, 4}));
}

TEST(UIBezierPath, MayBeCopied) {
  UIBezierPath path = curve({0, 0}, {1, 2}, {3, 4});
  const UIBezierPath copy = path;
  path.addQuadCurveToPoint({9, 9}, {5, 5});
  EXPECT_EQ(copy, curve({0, 0}, {1, 2}, {3, 4}));
  EXPECT_NE(copy, path);
}

TEST(UIBezierPathDeathTest, CurveFromNowhereStops) {
  UIBezierPath path;
  EXPECT_DEATH(path.addQuadCurveToPoint({1, 1}, {0, 0}), "current point");
}

RC_GTEST_PROP(UIBezierPathProperty, IsWalkedAtEvenSpeed, ()) {
  const auto coordinate = [] { return *rc::gen::inRange(-1000, 1001) / 2.0; };
  const UIBezierPath path = curve({coordinate(), coordinate()}, {coordinate(), coordinate()},
                                  {coordinate(), coordinate()});
  RC_PRE(path.length() > 1);
  constexpr int kSteps = 400;
  const double step = path.length() / kSteps;
  double walked = 0;
  CGPoint before = *path.pointAt(0);
  for (int i = 1; i <= kSteps; ++i) {
    const CGPoint now = *path.pointAt(i / static_cast<double>(kSteps));
    // A chord is never longer than its arc.
    RC_ASSERT(distance(before, now) <= step * (1 + 1e-6));
    walked += distance(before, now);
    before = now;
  }
  RC_ASSERT(walked >= path.length() * 0.99);
}

}  // namespace
}  // namespace kindora
