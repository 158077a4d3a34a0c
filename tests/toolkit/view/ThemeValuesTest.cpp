// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/ThemeValues.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeViewServices.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

class ThemeValues : public ::testing::Test {
 protected:
  const FakeViewServices fakes = installFakeViewServices();
};

TEST_F(ThemeValues, AColourFollowsTheSystem) {
  EXPECT_EQ(theme::kDanger.resolvedColor(), theme::kLight.danger);
  fakes.looks->change({.dark = true});
  EXPECT_EQ(theme::kDanger.resolvedColor(), theme::kDark.danger);
}

TEST_F(ThemeValues, BlackTextsAreTheInkAndOthersAsTheyAre) {
  EXPECT_EQ(theme::drawnText(UIColor::blackColor()), theme::kInk);
  EXPECT_EQ(theme::drawnText(UIColor::redColor()), UIColor::redColor());
  EXPECT_EQ(theme::drawnText(theme::kDanger), theme::kDanger);
}

TEST_F(ThemeValues, WhiteGroundsAreCardsAsOpaqueAsTheyWere) {
  fakes.looks->change({.dark = true});
  const UIColor sheer = theme::drawnGround(UIColor::whiteColor().colorWithAlphaComponent(0.5));
  EXPECT_EQ(sheer.resolvedColor(), theme::kDark.card.colorWithAlphaComponent(0.5));
  EXPECT_EQ(theme::drawnGround(UIColor::blackColor()), UIColor::blackColor());
  EXPECT_EQ(theme::drawnGround(UIColor::clearColor()), UIColor::clearColor());
}

TEST_F(ThemeValues, AnAnimatedGroundKeepsItsRole) {
  UIViewState from;
  from.backgroundColor = theme::kCard;
  const UIViewState still = interpolated(from, from, 0.3);
  fakes.looks->change({.dark = true});
  EXPECT_EQ(still.backgroundColor.resolvedColor(), theme::kDark.card);
  UIViewState to;
  to.backgroundColor = UIColor::redColor();
  EXPECT_EQ(interpolated(from, to, 0).backgroundColor, theme::kDark.card);
  EXPECT_EQ(interpolated(from, to, 1).backgroundColor, UIColor::redColor());
}

TEST_F(ThemeValues, ATintedTextIsDarkerInLightAndLighterInDark) {
  const UIColor tint{0.4, 0.6, 0.2, 1};
  const auto green = [&] { return theme::tintedText(tint).green; };
  const double light = green();
  EXPECT_LT(light, tint.green);
  fakes.looks->change({.highContrast = true});
  EXPECT_LT(green(), light);
  fakes.looks->change({.dark = true});
  const double dark = green();
  EXPECT_GT(dark, tint.green);
  fakes.looks->change({.dark = true, .highContrast = true});
  EXPECT_GT(green(), dark);
}

TEST_F(ThemeValues, ThingsStandStillWhereTheUserWantsLessMotion) {
  EXPECT_FALSE(theme::stillness());
  fakes.looks->change({.reducedMotion = true});
  EXPECT_TRUE(theme::stillness());
}

}  // namespace
}  // namespace kindora
