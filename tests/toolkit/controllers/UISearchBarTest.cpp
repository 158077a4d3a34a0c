// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UISearchBar.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <memory>

#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

class UISearchBarTest : public ::testing::Test {
 protected:
  UISearchBar bar;
  QSignalSpy edits{&bar, &UISearchBar::edited};
  QSignalSpy looks{&bar, &UISearchBar::lookChanged};
  QSignalSpy presses{&bar, &UISearchBar::pressed};
  QSignalSpy buttons{&bar, &UISearchBar::showsCancelButtonChanged};
};

TEST_F(UISearchBarTest, IsEmptyAndWithoutTheKeyboardAtTheStart) {
  EXPECT_TRUE(bar.text().isEmpty());
  EXPECT_FALSE(bar.isFirstResponder());
  EXPECT_FALSE(bar.showsCancelButton());
  EXPECT_EQ(bar.searchBarStyle(), UISearchBarStyle::standard);
  EXPECT_EQ(bar.height(), 44);
}

TEST_F(UISearchBarTest, WhatTheUserTypesIsTextAndEdit) {
  bar.edit(QStringLiteral("an"));
  EXPECT_EQ(bar.text(), QStringLiteral("an"));
  EXPECT_EQ(bar.searchTextField().text(), "an");
  EXPECT_EQ(edits.count(), 1);
}

TEST_F(UISearchBarTest, TheTextIsThereWhenTheEditIsTold) {
  QString heard;
  QObject::connect(&bar, &UISearchBar::edited, [&] { heard = bar.text(); });
  bar.edit(QStringLiteral("an"));
  EXPECT_EQ(heard, QStringLiteral("an"));
}

TEST_F(UISearchBarTest, TypingTheSameIsNoEdit) {
  bar.edit(QStringLiteral("an"));
  bar.edit(QStringLiteral("an"));
  EXPECT_EQ(edits.count(), 1);
}

TEST_F(UISearchBarTest, WhatTheProgramSetsIsNoEdit) {
  bar.setText(QStringLiteral("an"));
  EXPECT_EQ(bar.searchTextField().text(), "an");
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(UISearchBarTest, BlanksAreKept) {
  bar.edit(QStringLiteral(" the "));
  EXPECT_EQ(bar.text(), QStringLiteral(" the "));
}

TEST_F(UISearchBarTest, APressTakesTheKeyboardAndIsTold) {
  const auto other = std::make_shared<UITextField>();
  other->becomeFirstResponder();
  bar.press();
  EXPECT_TRUE(bar.isFirstResponder());
  EXPECT_FALSE(other->isFirstResponder());
  EXPECT_EQ(presses.count(), 1);
  bar.resignFirstResponder();
  EXPECT_FALSE(bar.isFirstResponder());
  EXPECT_EQ(presses.count(), 1);
}

TEST_F(UISearchBarTest, TheKeyboardAloneIsNoPress) {
  bar.searchTextField().becomeFirstResponder();
  EXPECT_TRUE(bar.isFirstResponder());
  EXPECT_EQ(presses.count(), 0);
}

TEST_F(UISearchBarTest, TheReturnKeyPutsTheKeyboardAway) {
  bar.press();
  bar.searchTextField().pressReturn();
  EXPECT_FALSE(bar.isFirstResponder());
}

TEST_F(UISearchBarTest, ComposedTextIsTextAndEditAndMayBeReplaced) {
  bar.edit(QStringLiteral("A"));
  bar.searchTextField().setMarkedText({1, 0}, "n");
  EXPECT_EQ(bar.text(), QStringLiteral("An"));
  EXPECT_EQ(edits.count(), 2);
  bar.edit(QString());
  EXPECT_EQ(bar.text(), QString());
  EXPECT_EQ(edits.count(), 3);
}

TEST_F(UISearchBarTest, IsAsWideAsItIsGivenRoom) {
  bar.setFrame({{0, 0}, {0, 50}});
  bar.reportWidth(320);
  bar.reportWidth(320);
  EXPECT_EQ(bar.frame(), (CGRect{{0, 0}, {320, 50}}));
  EXPECT_EQ(looks.count(), 2);
}

TEST_F(UISearchBarTest, ShowsItsCancelButtonWhenTold) {
  bar.setShowsCancelButton(true);
  bar.setShowsCancelButton(true);
  EXPECT_TRUE(bar.showsCancelButton());
  EXPECT_EQ(buttons.count(), 1);
}

TEST_F(UISearchBarTest, CancellingIsTold) {
  const QSignalSpy cancels(&bar, &UISearchBar::cancelled);
  bar.cancel();
  EXPECT_EQ(cancels.count(), 1);
}

TEST_F(UISearchBarTest, TellsItsLook) {
  bar.setFrame({{0, 0}, {320, 50}});
  bar.setBackgroundColor(UIColor::yellowColor());
  bar.setSearchBarStyle(UISearchBarStyle::minimal);
  EXPECT_EQ(looks.count(), 2);
  EXPECT_EQ(bar.height(), 50);
  EXPECT_EQ(bar.background(), QColor(Qt::yellow));
  EXPECT_EQ(bar.backgroundColor(), UIColor::yellowColor());
  EXPECT_EQ(bar.searchBarStyle(), UISearchBarStyle::minimal);
}

}  // namespace
}  // namespace kindora
