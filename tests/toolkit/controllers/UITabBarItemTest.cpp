// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITabBar.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

class UITabBarItemTest : public ::testing::Test {
 protected:
  UITabBarItemTest() {
    QObject::connect(&item, &UITabBarItem::changed, [this] { ++changes; });
  }
  UITabBarItem item;
  int changes = 0;
};

TEST_F(UITabBarItemTest, HasNoBadgeAtTheStart) { EXPECT_TRUE(item.badgeValue().isNull()); }

TEST_F(UITabBarItemTest, ShowsTitleAndGlyph) {
  item.setTitleAndImage(QStringLiteral("Badges"), QStringLiteral("tabBadges"));
  EXPECT_EQ(item.title(), QStringLiteral("Badges"));
  EXPECT_EQ(item.imageName(), QStringLiteral("tabBadges"));
  EXPECT_EQ(changes, 1);
}

TEST_F(UITabBarItemTest, TheSameTitleAndGlyphAreNoChange) {
  item.setTitleAndImage(QStringLiteral("Badges"), QStringLiteral("tabBadges"));
  item.setTitleAndImage(QStringLiteral("Badges"), QStringLiteral("tabBadges"));
  EXPECT_EQ(changes, 1);
}

TEST_F(UITabBarItemTest, TellsAChangedBadgeOnce) {
  item.setBadgeValue(QStringLiteral("1"));
  item.setBadgeValue(QStringLiteral("1"));
  EXPECT_EQ(item.badgeValue(), QStringLiteral("1"));
  EXPECT_EQ(changes, 1);
}

TEST_F(UITabBarItemTest, AnEmptyBadgeIsNotNoBadge) {
  item.setBadgeValue(QStringLiteral(""));
  EXPECT_FALSE(item.badgeValue().isNull());
  EXPECT_EQ(changes, 1);
  item.setBadgeValue(QString());
  EXPECT_TRUE(item.badgeValue().isNull());
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace kindora
