// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UINavigationItem.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

class UINavigationItemTest : public ::testing::Test {
 protected:
  UINavigationItemTest() {
    QObject::connect(&item, &UINavigationItem::changed, [this] { ++changes; });
  }
  static UIBarButtonItemRef button() {
    return std::make_shared<UIBarButtonItem>(QStringLiteral("Add"), QStringLiteral("plus"), [] {});
  }
  UINavigationItem item;
  int changes = 0;
};

TEST_F(UINavigationItemTest, ShowsItsBackButtonAtTheStart) {
  EXPECT_FALSE(item.hidesBackButton());
  EXPECT_TRUE(item.title().isEmpty());
  EXPECT_TRUE(item.prompt().isEmpty());
  EXPECT_EQ(item.leftBarButtonItem(), nullptr);
  EXPECT_EQ(item.rightBarButtonItem(), nullptr);
}

TEST_F(UINavigationItemTest, TellsEachChangeOnce) {
  item.setTitle(QStringLiteral("Title"));
  EXPECT_EQ(changes, 1);
  item.setPrompt(QStringLiteral("Prompt"));
  EXPECT_EQ(changes, 2);
  item.setHidesBackButton(true);
  EXPECT_EQ(changes, 3);
  item.setLeftBarButtonItem(button());
  EXPECT_EQ(changes, 4);
  item.setRightBarButtonItem(button());
  EXPECT_EQ(changes, 5);
}

TEST_F(UINavigationItemTest, TellsNothingWhenNothingChanges) {
  const auto left = button();
  const auto right = button();
  const auto assign = [&] {
    item.setTitle(QStringLiteral("Title"));
    item.setPrompt(QStringLiteral("Prompt"));
    item.setHidesBackButton(true);
    item.setLeftBarButtonItem(left);
    item.setRightBarButtonItem(right);
  };
  assign();
  changes = 0;
  assign();
  EXPECT_EQ(changes, 0);
}

TEST_F(UINavigationItemTest, AButtonCanBeTakenAwayAgain) {
  item.setRightBarButtonItem(button());
  item.setRightBarButtonItem(nullptr);
  EXPECT_EQ(item.rightBarButtonItem(), nullptr);
  EXPECT_EQ(changes, 2);
}

TEST(UIBarButtonItem, RunsItsActionWhenPressed) {
  int pressed = 0;
  UIBarButtonItem button(QStringLiteral("Add"), QStringLiteral("plus"), [&pressed] { ++pressed; });
  button.press();
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(button.title(), QStringLiteral("Add"));
  EXPECT_EQ(button.imageName(), QStringLiteral("plus"));
}

TEST(UIBarButtonItem, DoesNothingWhileItIsDisabled) {
  int pressed = 0;
  UIBarButtonItem button(QStringLiteral("Add"), {}, [&pressed] { ++pressed; });
  button.setEnabled(false);
  button.press();
  EXPECT_EQ(pressed, 0);
  button.setEnabled(true);
  button.press();
  EXPECT_EQ(pressed, 1);
}

TEST(UIBarButtonItem, TellsOnceThatItWasDisabled) {
  UIBarButtonItem button(QStringLiteral("Add"), {}, [] {});
  int changes = 0;
  QObject::connect(&button, &UIBarButtonItem::enabledChanged, [&changes] { ++changes; });
  button.setEnabled(false);
  button.setEnabled(false);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
