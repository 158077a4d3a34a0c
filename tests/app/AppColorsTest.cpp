// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppColors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <concepts>

namespace kindora {
namespace {

static_assert(std::same_as<decltype(appColor()), UIColor>, "a new value at every call");

TEST(AppColors, AppColorIsAnOpaqueFreshGreen) {
  const UIColor color = appColor();
  EXPECT_EQ(color.red, 0.396);
  EXPECT_EQ(color.green, 0.784);
  EXPECT_EQ(color.blue, 0.208);
  EXPECT_EQ(color.alpha, 1.0);
}

TEST(AppColors, AppColorIsAbout101And200And53InBytes) {
  const UIColor color = appColor();
  EXPECT_EQ(std::lround(color.red * 255), 101);
  EXPECT_EQ(std::lround(color.green * 255), 200);
  EXPECT_EQ(std::lround(color.blue * 255), 53);
}

}  // namespace
}  // namespace kindora
