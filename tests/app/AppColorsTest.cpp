// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppColors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <concepts>
#include <string>

#include "platform/fakes/FakeViewServices.h"
#include "tests/support/Contrast.h"
#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UIViewTint.h"

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

class TextsInTheAppColour : public ::testing::TestWithParam<Looks> {
 protected:
  TextsInTheAppColour() { fakes.looks->change(GetParam()); }

  const FakeViewServices fakes = installFakeViewServices();
  const double least = GetParam().highContrast ? 7 : 4.5;
};

TEST_P(TextsInTheAppColour, CanBeReadOnTheirGrounds) {
  const Palette& palette = theme::palette();
  for (const UIColor& ground :
       {palette.ground, palette.card, palette.raised, palette.pressed, palette.well}) {
    EXPECT_GE(contrast(theme::tintedText(appColor()), ground), least);
  }
}

TEST_P(TextsInTheAppColour, ThoseOnItCanBeRead) {
  EXPECT_GE(contrast(theme::palette().inkOnTint, appColor()), least);
  EXPECT_GE(contrast(theme::palette().inkOnTint, desaturated(appColor())), 4.5) << "while dimmed";
}

INSTANTIATE_TEST_SUITE_P(Schemes, TextsInTheAppColour,
                         ::testing::Values(Looks{}, Looks{.dark = true},
                                           Looks{.highContrast = true},
                                           Looks{.dark = true, .highContrast = true}),
                         [](const auto& each) {
                           return std::string(each.param.dark ? "Dark" : "Light") +
                                  (each.param.highContrast ? "Contrast" : "");
                         });

}  // namespace
}  // namespace kindora
