// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppearanceManager.h"

#include <gtest/gtest.h>

#include "app/AppColors.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBar.h"

namespace kindora {
namespace {

class AppearanceManagerTest : public ::testing::Test {
 protected:
  AppearanceManagerTest() { AppearanceManager::configureAppearance(); }
  ~AppearanceManagerTest() override {
    UINavigationBar::appearance() = {};
    UITabBarItem::appearance() = {};
  }
};

TEST_F(AppearanceManagerTest, NavigationBarsAreInTheAppColour) {
  EXPECT_EQ(UINavigationBar::appearance().barTintColor, appColor());
}

TEST_F(AppearanceManagerTest, BarButtonsAreWhite) {
  EXPECT_EQ(UINavigationBar::appearance().tintColor, UIColor::whiteColor());
}

TEST_F(AppearanceManagerTest, BarTitlesAreWhiteAndOf20Points) {
  EXPECT_EQ(UINavigationBar::appearance().titleColor, UIColor::whiteColor());
  EXPECT_EQ(UINavigationBar::appearance().titleFont, (UIFont{"AvenirNext-Medium", 20}));
}

TEST_F(AppearanceManagerTest, TabTitlesAreOf11Points) {
  EXPECT_EQ(UITabBarItem::appearance().titleFont, (UIFont{"AvenirNext-Medium", 11}));
}

TEST(AppearanceManager, DressesNothingBeforeItIsAsked) {
  EXPECT_NE(UINavigationBar::appearance().barTintColor, appColor());
  EXPECT_NE(UITabBarItem::appearance().titleFont, (UIFont{"AvenirNext-Medium", 11}));
}

}  // namespace
}  // namespace kindora
