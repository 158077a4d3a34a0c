// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewFormats.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(QavAlertViewFormats, TitleStandsAboveMessage) {
  EXPECT_EQ(qav_labelsFormat(), "V:|-(==topSpace)-[titleLabel]-(==labelSpace)-[messageLabel]");
}

TEST(QavAlertViewFormats, AlertWithNothingButTextsIsTheirArea) {
  EXPECT_EQ(qav_alertFormat({}), "V:|[scrollView]|");
}

TEST(QavAlertViewFormats, AlertWithEverything) {
  EXPECT_EQ(qav_alertFormat({.textFields = true, .customContent = true, .buttons = true}),
            "V:|[scrollView]-(==textFieldBackgroundViewTopSpacing)-[textFieldBackgroundView]"
            "-[customContentView]-(==bottomSpacing)-[buttonTopSeparatorView]"
            "[otherButtonsTableView][suggestedButtonTableView]|");
}

TEST(QavAlertViewFormats, SuggestedButtonBesideTheOtherIsNotStacked) {
  EXPECT_EQ(qav_alertFormat({.buttons = true, .buttonsSideBySide = true}),
            "V:|[scrollView]-(==bottomSpacing)-[buttonTopSeparatorView][otherButtonsTableView]|");
}

TEST(QavAlertViewFormats, EachElementBringsItsOwnPiece) {
  EXPECT_EQ(qav_alertFormat({.textFields = true}),
            "V:|[scrollView]-(==textFieldBackgroundViewTopSpacing)-[textFieldBackgroundView]|");
  EXPECT_EQ(qav_alertFormat({.customContent = true}), "V:|[scrollView]-[customContentView]|");
}

TEST(QavAlertViewFormats, SecondFieldStandsBelowALine) {
  EXPECT_EQ(qav_textFieldsFormat(false), "V:|[primaryTextField(==primaryTextFieldHeight)]|");
  EXPECT_EQ(qav_textFieldsFormat(true),
            "V:|[primaryTextField(==primaryTextFieldHeight)][textFieldSeparatorView]"
            "[secondaryTextField(==secondaryTextFieldHeight)]|");
}

}  // namespace
}  // namespace kindora
