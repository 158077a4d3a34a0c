// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/NSValue.h"

#include <gtest/gtest.h>

#include "platform/UIColor.h"

namespace kindora {
namespace {

TEST(NSValue, IsNilAsMade) {
  EXPECT_TRUE(NSValue().isNil());
  EXPECT_FALSE(NSValue().isNumber());
  EXPECT_EQ(NSValue().objCType(), "");
  EXPECT_TRUE(NSValue::valueWithObject(nullptr).isNil());
}

TEST(NSValue, EncodesTheTypesOfGeometry) {
  EXPECT_EQ(NSValue::valueWithCATransform3D({}).objCType(), "{CATransform3D=dddddddddddddddd}");
  EXPECT_EQ(NSValue::valueWithCGRect({}).objCType(), "{CGRect={CGPoint=dd}{CGSize=dd}}");
  EXPECT_EQ(NSValue::valueWithCGPoint({}).objCType(), "{CGPoint=dd}");
  EXPECT_EQ(NSValue::valueWithCGSize({}).objCType(), "{CGSize=dd}");
}

TEST(NSValue, AnyNumberReadsAsADouble) {
  EXPECT_EQ(NSValue::numberWithDouble(2.5).doubleValue(), 2.5);
  EXPECT_EQ(NSValue::numberWithInteger(-3).doubleValue(), -3);
  EXPECT_EQ(NSValue::numberWithBool(true).doubleValue(), 1);
  EXPECT_EQ(NSValue::numberWithBool(false).doubleValue(), 0);
  for (const NSValue& number : {NSValue::numberWithDouble(0), NSValue::numberWithInteger(0),
                                NSValue::numberWithBool(false)}) {
    EXPECT_TRUE(number.isNumber());
    EXPECT_FALSE(number.isNil());
  }
}

TEST(NSValue, GivesBackWhatWasPutIn) {
  const CGRect rect{{1, 2}, {3, 4}};
  EXPECT_EQ(NSValue::valueWithCGPoint({1, 2}).CGPointValue(), (CGPoint{1, 2}));
  EXPECT_EQ(NSValue::valueWithCGSize({3, 4}).CGSizeValue(), (CGSize{3, 4}));
  EXPECT_EQ(NSValue::valueWithCGRect(rect).CGRectValue(), rect);
  EXPECT_EQ(NSValue::valueWithCATransform3D(CATransform3DIdentity).CATransform3DValue(),
            CATransform3DIdentity);
  const auto color = std::make_shared<const UIColor>(UIColor::blackColor());
  EXPECT_EQ(NSValue::valueWithObject(color).object(), color);
}

TEST(NSValue, ReadsAsZerosWithTheGetterOfAnotherKind) {
  const NSValue point = NSValue::valueWithCGPoint({1, 2});
  EXPECT_EQ(point.doubleValue(), 0);
  EXPECT_EQ(point.CGSizeValue(), CGSize{});
  EXPECT_EQ(point.CGRectValue(), CGRect{});
  EXPECT_EQ(point.CATransform3DValue(), CATransform3D{});
  EXPECT_EQ(point.object(), nullptr);
  EXPECT_EQ(NSValue().CGPointValue(), CGPoint{});
  EXPECT_EQ(NSValue().doubleValue(), 0);
}

TEST(NSValue, ComparesObjectsByIdentity) {
  const auto one = std::make_shared<const UIColor>(UIColor::blackColor());
  const auto other = std::make_shared<const UIColor>(UIColor::blackColor());
  EXPECT_EQ(NSValue::valueWithObject(one), NSValue::valueWithObject(one));
  EXPECT_NE(NSValue::valueWithObject(one), NSValue::valueWithObject(other));
}

TEST(NSValue, PointIsNoSizeOfTheSameNumbers) {
  EXPECT_NE(NSValue::valueWithCGPoint({1, 2}), NSValue::valueWithCGSize({1, 2}));
}

}  // namespace
}  // namespace kindora
