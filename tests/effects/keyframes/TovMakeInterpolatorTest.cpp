// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovMakeInterpolator.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <bit>
#include <cmath>

#include "platform/UIColor.h"
#include "tests/effects/keyframes/Values.h"

namespace kindora {
namespace {

using Matrix = std::array<double, 16>;

CATransform3D countedFrom(double first) {
  Matrix matrix;
  for (std::size_t i = 0; i < matrix.size(); ++i) matrix[i] = first + static_cast<double>(i);
  return std::bit_cast<CATransform3D>(matrix);
}

TEST(TovMakeInterpolator, BlendsEachComponentOfATransform) {
  const auto blend = TovMakeInterpolator(NSValue::valueWithCATransform3D(countedFrom(1)),
                                         NSValue::valueWithCATransform3D(countedFrom(101)));
  EXPECT_EQ(blend(0).CATransform3DValue(), countedFrom(1));
  EXPECT_EQ(blend(0.25).CATransform3DValue(), countedFrom(26));
  EXPECT_EQ(blend(1).CATransform3DValue(), countedFrom(101));
}

TEST(TovMakeInterpolator, DoesNotTakeATransformApart) {
  // Half a turn: halfway the matrix is flat.
  CATransform3D turned = CATransform3DIdentity;
  turned.m11 = turned.m22 = -1;
  const auto blend = TovMakeInterpolator(NSValue::valueWithCATransform3D(CATransform3DIdentity),
                                         NSValue::valueWithCATransform3D(turned));
  EXPECT_EQ(blend(0.5).CATransform3DValue(), (CATransform3D{.m33 = 1, .m44 = 1}));
}

TEST(TovMakeInterpolator, TransformGoesToAllZerosWhenThereIsNoTo) {
  const auto blend =
      TovMakeInterpolator(NSValue::valueWithCATransform3D(CATransform3DIdentity), NSValue());
  EXPECT_EQ(blend(1).CATransform3DValue(), CATransform3D{});
  EXPECT_EQ(blend(0.5).CATransform3DValue(),
            (CATransform3D{.m11 = 0.5, .m22 = 0.5, .m33 = 0.5, .m44 = 0.5}));
}

TEST(TovMakeInterpolator, BlendsARect) {
  const auto blend = TovMakeInterpolator(NSValue::valueWithCGRect({{0, 10}, {20, 30}}),
                                         NSValue::valueWithCGRect({{4, 20}, {40, 70}}));
  EXPECT_EQ(blend(0.5), NSValue::valueWithCGRect({{2, 15}, {30, 50}}));
}

TEST(TovMakeInterpolator, BlendsAPointIntoAPoint) {
  const auto blend =
      TovMakeInterpolator(NSValue::valueWithCGPoint({0, 10}), NSValue::valueWithCGPoint({4, 20}));
  EXPECT_EQ(blend(0.5), NSValue::valueWithCGPoint({2, 15}));
}

TEST(TovMakeInterpolator, BlendsASizeIntoASize) {
  const auto blend =
      TovMakeInterpolator(NSValue::valueWithCGSize({0, 10}), NSValue::valueWithCGSize({4, 20}));
  EXPECT_EQ(blend(0.5), NSValue::valueWithCGSize({2, 15}));
}

TEST(TovMakeInterpolator, BlendsNumbers) {
  const auto blend = TovMakeInterpolator(number(10), number(20));
  EXPECT_EQ(blend(0), number(10));
  EXPECT_EQ(blend(0.5), number(15));
  EXPECT_EQ(blend(1), number(20));
}

TEST(TovMakeInterpolator, NumberOfAnyTypeBecomesADouble) {
  EXPECT_EQ(TovMakeInterpolator(NSValue::numberWithInteger(0), NSValue::numberWithInteger(1))(0.5),
            number(0.5));
  EXPECT_EQ(TovMakeInterpolator(NSValue::numberWithBool(false), number(3))(0.5), number(1.5));
  EXPECT_EQ(TovMakeInterpolator(number(1), NSValue::numberWithBool(false))(0.25), number(0.75));
}

TEST(TovMakeInterpolator, KindIsThatOfTheFromValueAlone) {
  const NSValue point = NSValue::valueWithCGPoint({8, 4});
  EXPECT_EQ(TovMakeInterpolator(point, NSValue::valueWithCGSize({1, 1}))(0.5),
            NSValue::valueWithCGPoint({4, 2}));
  EXPECT_EQ(TovMakeInterpolator(number(8), point)(0.5), number(4));
  EXPECT_EQ(TovMakeInterpolator(point, NSValue())(0.5), NSValue::valueWithCGPoint({4, 2}));
  EXPECT_EQ(TovMakeInterpolator(number(8), NSValue())(0.25), number(6));
}

TEST(TovMakeInterpolator, SwitchesWhatDoesNotBlendInTheMiddle) {
  const NSValue black = color(UIColor::blackColor());
  const NSValue white = color(UIColor::whiteColor());
  const auto blend = TovMakeInterpolator(black, white);
  EXPECT_EQ(blend(0), black);
  EXPECT_EQ(blend(0.49999999999999994), black);
  EXPECT_EQ(blend(0.5), white);
  EXPECT_EQ(blend(1), white);
}

TEST(TovMakeInterpolator, SwitchesFromNilToo) {
  const auto blend = TovMakeInterpolator(NSValue(), number(5));
  EXPECT_EQ(blend(0.49), NSValue());
  EXPECT_EQ(blend(0.5), number(5));
}

TEST(TovMakeInterpolator, ExtrapolatesInAStraightLine) {
  const auto blend = TovMakeInterpolator(number(10), number(20));
  EXPECT_EQ(blend(-1), number(0));
  EXPECT_EQ(blend(2.5), number(35));
}

TEST(TovMakeInterpolator, OutsideTheWayWhatDoesNotBlendStaysAtItsEnds) {
  const NSValue black = color(UIColor::blackColor());
  const NSValue white = color(UIColor::whiteColor());
  const auto blend = TovMakeInterpolator(black, white);
  EXPECT_EQ(blend(-3), black);
  EXPECT_EQ(blend(3), white);
}

RC_GTEST_PROP(TovMakeInterpolatorProperty, IsFromPlusDifferenceTimesFractionToTheLastBit, ()) {
  const auto any = [] { return *rc::gen::inRange(-100000, 100001) / 977.0; };
  const double from = any();
  const double to = any();
  const double fraction = any();
  const double difference = to - from;
  RC_ASSERT(TovMakeInterpolator(number(from), number(to))(fraction) ==
            number(from + difference * fraction));
}

}  // namespace
}  // namespace kindora
