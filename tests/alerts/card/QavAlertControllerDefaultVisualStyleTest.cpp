// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

class QavAlertControllerDefaultVisualStyleTest : public testing::Test {
 protected:
  [[nodiscard]] static QavAlertActionRef action(QavAlertActionStyle style) {
    return QavAlertAction::actionWithTitle("Go", style);
  }
  const FakeViewServices fakes = installFakeViewServices();
  const QavAlertControllerDefaultVisualStyle style;
};

TEST_F(QavAlertControllerDefaultVisualStyleTest, CardMeasures) {
  EXPECT_EQ(style.width(), 270);
  EXPECT_EQ(style.contentPadding(),
            (UIEdgeInsets{.top = 36, .left = 16, .bottom = 12, .right = 16}));
  EXPECT_EQ(style.cornerRadius(), 7);
  EXPECT_EQ(style.margins(), (UIEdgeInsets{.top = 3, .left = 0, .bottom = 3, .right = 0}));
  EXPECT_EQ(style.parallax(), (UIOffset{.horizontal = 15.75, .vertical = 15.75}));
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, Texts) {
  EXPECT_EQ(style.titleLabelFont(), UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(style.messageLabelFont(), UIFont::systemFontOfSize(13));
  EXPECT_EQ(style.labelSpacing(), 18);
  EXPECT_EQ(style.messageLabelBottomSpacing(), 24);
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, Buttons) {
  EXPECT_EQ(style.actionViewHeight(), 44);
  EXPECT_EQ(style.minimumActionViewWidth(), 90);
  EXPECT_EQ(style.actionViewSeparatorColor(), (UIColor{0.5, 0.5, 0.5, 0.5}));
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, HighlightIsAFreshGreyViewAtEachCall) {
  const auto view = style.actionViewHighlightBackgroundView();
  EXPECT_EQ(view->state().backgroundColor, (UIColor{0.8, 0.8, 0.8, 0.7}));
  EXPECT_NE(style.actionViewHighlightBackgroundView(), view);
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, OnlyWhatDestroysIsRed) {
  const UIColor tint{0, 0.478, 1, 1};
  EXPECT_EQ(style.textColorForAction(*action(QavAlertActionStyle::standard)), tint);
  EXPECT_EQ(style.textColorForAction(*action(QavAlertActionStyle::cancel)), tint);
  EXPECT_EQ(style.textColorForAction(*action(QavAlertActionStyle::destructive)),
            (UIColor{1, 0, 0, 1}));
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, OnlyTheCancelButtonIsBold) {
  EXPECT_EQ(style.fontForAction(*action(QavAlertActionStyle::standard)),
            UIFont::systemFontOfSize(17));
  EXPECT_EQ(style.fontForAction(*action(QavAlertActionStyle::cancel)),
            UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(style.fontForAction(*action(QavAlertActionStyle::destructive)),
            UIFont::systemFontOfSize(17));
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, TextFields) {
  EXPECT_EQ(style.textFieldFont(), UIFont::systemFontOfSize(13));
  EXPECT_EQ(style.estimatedTextFieldHeight(), 25);
  EXPECT_EQ(style.textFieldBorderColor(), (UIColor{64.0 / 255, 64.0 / 255, 64.0 / 255, 1}));
  EXPECT_EQ(style.textFieldMargins(), (UIEdgeInsets{4, 4, 4, 4}));
}

TEST_F(QavAlertControllerDefaultVisualStyleTest, HairlinesAreOnePixelOfTheScreenAsItIsNow) {
  for (const double scale : {1.0, 2.0, 3.0}) {
    fakes.mainScreen->pixelsPerPoint = scale;
    EXPECT_EQ(style.actionViewSeparatorThickness(), 1 / scale);
    EXPECT_EQ(style.textFieldBorderWidth(), 1 / scale);
  }
}

}  // namespace
}  // namespace kindora
