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
  QSignalSpy texts{&bar, &UISearchBar::textChanged};
  QSignalSpy edits{&bar, &UISearchBar::edited};
  QSignalSpy looks{&bar, &UISearchBar::lookChanged};
  QSignalSpy firsts{&bar, &UISearchBar::firstResponderChanged};
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
  EXPECT_EQ(texts.count(), 1);
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
  bar.setText(QStringLiteral("an"));
  EXPECT_EQ(texts.count(), 1);
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(UISearchBarTest, BlanksAreKept) {
  bar.edit(QStringLiteral(" the "));
  EXPECT_EQ(bar.text(), QStringLiteral(" the "));
}

TEST_F(UISearchBarTest, TellsOnceThatItIsFirstResponderAndNoLonger) {
  bar.setFirstResponder(true);
  bar.setFirstResponder(true);
  EXPECT_TRUE(bar.isFirstResponder());
  EXPECT_EQ(firsts.count(), 1);
  bar.resignFirstResponder();
  bar.resignFirstResponder();
  EXPECT_FALSE(bar.isFirstResponder());
  EXPECT_EQ(firsts.count(), 2);
}

TEST_F(UISearchBarTest, ATextFieldTakesTheKeyboardFromIt) {
  UITextField field;
  bar.setFirstResponder(true);
  field.becomeFirstResponder();
  EXPECT_FALSE(bar.isFirstResponder());
  EXPECT_EQ(firsts.count(), 2);
}

TEST_F(UISearchBarTest, TakesTheKeyboardFromATextField) {
  const auto field = std::make_shared<UITextField>();
  field->becomeFirstResponder();
  int told = 0;
  const auto subscription = field->observe([&told] { ++told; });
  bar.setFirstResponder(true);
  EXPECT_FALSE(field->isFirstResponder());
  EXPECT_EQ(told, 1);
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
