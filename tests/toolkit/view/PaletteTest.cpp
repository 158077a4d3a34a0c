// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/Palette.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/fakes/FakeViewServices.h"
#include "tests/support/Contrast.h"

namespace kindora {
namespace {

using Role = UIColor Palette::*;

struct Text {
  std::string name;
  Role color;
  std::vector<Role> grounds;
};

const std::vector<Role> kGrounds{&Palette::ground, &Palette::card, &Palette::raised,
                                 &Palette::pressed, &Palette::well};
const std::vector<Text> kTexts{
    {"ink", &Palette::ink, kGrounds},
    {"soft ink", &Palette::softInk, kGrounds},
    {"danger", &Palette::danger, kGrounds},
    {"glyph", &Palette::glyph, {&Palette::ground, &Palette::card, &Palette::raised}},
    {"ink on danger", &Palette::inkOnDanger, {&Palette::danger, &Palette::dangerPressed}},
    {"ink on dark", &Palette::inkOnDark, {&Palette::darkGround}},
};

struct Scheme {
  std::string name;
  Looks looks;
};

class PaletteTest : public ::testing::TestWithParam<Scheme> {
 protected:
  const Palette& palette = theme::paletteFor(GetParam().looks);
};

TEST_P(PaletteTest, EveryTextCanBeReadOnItsGrounds) {
  const double least = GetParam().looks.highContrast ? 7 : 4.5;
  for (const Text& text : kTexts) {
    for (std::size_t i = 0; i < text.grounds.size(); ++i) {
      EXPECT_GE(contrast(palette.*text.color, palette.*text.grounds[i]), least)
          << text.name << " on its ground number " << i;
    }
  }
}

TEST_P(PaletteTest, GlyphsInAWellCanBeMadeOut) {
  EXPECT_GE(contrast(palette.glyph, palette.well), 3);
}

TEST_P(PaletteTest, InHighContrastCardsHaveStrongBorders) {
  if (!GetParam().looks.highContrast) return;
  EXPECT_EQ(palette.borderWidth, 2);
  for (const Role ground : kGrounds) EXPECT_GE(contrast(palette.cardBorder, palette.*ground), 7);
  EXPECT_EQ(palette.cardBorder, palette.ink);
  EXPECT_EQ(palette.controlBorder, palette.ink);
}

INSTANTIATE_TEST_SUITE_P(Schemes, PaletteTest,
                         ::testing::Values(Scheme{"Light", {}}, Scheme{"Dark", {.dark = true}},
                                           Scheme{"LightContrast", {.highContrast = true}},
                                           Scheme{"DarkContrast",
                                                  {.dark = true, .highContrast = true}}),
                         [](const auto& each) { return each.param.name; });

TEST(Palettes, TheOneInForceFollowsTheSystem) {
  const FakeViewServices fakes = installFakeViewServices();
  EXPECT_EQ(&theme::palette(), &theme::kLight);
  fakes.looks->change({.dark = true});
  EXPECT_EQ(&theme::palette(), &theme::kDark);
  fakes.looks->change({.dark = true, .highContrast = true});
  EXPECT_EQ(&theme::palette(), &theme::kDarkContrast);
  fakes.looks->change({.highContrast = true});
  EXPECT_EQ(&theme::palette(), &theme::kLightContrast);
}

}  // namespace
}  // namespace kindora
