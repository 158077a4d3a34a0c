// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/UIColor.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

UIColor changing = UIColor::redColor();

UIColor whatItIsNow() { return changing; }

TEST(UIColor, ADynamicColourIsWhatItsProviderSaysNow) {
  constexpr UIColor color = UIColor::dynamicColor(whatItIsNow);
  changing = UIColor::redColor();
  EXPECT_EQ(color.resolvedColor(), UIColor::redColor());
  changing = UIColor::yellowColor();
  EXPECT_EQ(color.resolvedColor(), UIColor::yellowColor());
}

TEST(UIColor, ADynamicColoursAlphaIsAFactor) {
  changing = UIColor::redColor().colorWithAlphaComponent(0.5);
  const UIColor color = UIColor::dynamicColor(whatItIsNow).colorWithAlphaComponent(0.5);
  EXPECT_EQ(color.resolvedColor(), UIColor::redColor().colorWithAlphaComponent(0.25));
}

TEST(UIColor, AnotherIsResolvedToItself) {
  EXPECT_EQ(UIColor::redColor().resolvedColor(), UIColor::redColor());
}

TEST(UIColor, ADynamicColourEqualsOneOfTheSameProviderAlone) {
  EXPECT_EQ(UIColor::dynamicColor(whatItIsNow), UIColor::dynamicColor(whatItIsNow));
  EXPECT_NE(UIColor::dynamicColor(whatItIsNow), UIColor::blackColor());
}

}  // namespace
}  // namespace kindora
