// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITabBar.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "toolkit/view/UIControl.h"

namespace kindora {
namespace {

class UITabBarTest : public ::testing::Test {
 protected:
  [[nodiscard]] auto controls() const {
    return std::ranges::count_if(bar.view().subviews(), [](const auto& view) {
      return dynamic_cast<const UIControl*>(view.get()) != nullptr;
    });
  }

  UITabBar bar;
};

TEST_F(UITabBarTest, HasNoTabsAtTheStart) { EXPECT_EQ(controls(), 0); }

TEST_F(UITabBarTest, EachTabIsAControlOfItsOwn) {
  bar.addTab();
  bar.addTab();
  EXPECT_EQ(controls(), 2);
  EXPECT_NE(dynamic_cast<UIControl*>(bar.outlet("tab0").get()), nullptr);
  EXPECT_NE(dynamic_cast<UIControl*>(bar.outlet("tab1").get()), nullptr);
  EXPECT_NE(bar.outlet("tab0"), bar.outlet("tab1"));
  EXPECT_EQ(bar.outlet("tab2"), nullptr);
}

TEST_F(UITabBarTest, ItsOwnViewIsAnOutlet) { EXPECT_EQ(bar.outlet("tabBar").get(), &bar.view()); }

TEST_F(UITabBarTest, TheLineAboveTheTabsIsNoTab) {
  ASSERT_NE(bar.outlet("hairline"), nullptr);
  EXPECT_EQ(dynamic_cast<UIControl*>(bar.outlet("hairline").get()), nullptr);
}

TEST_F(UITabBarTest, ItsViewTakesNoInputWhileTheBarTakesNone) {
  bar.setUserInteractionEnabled(false);
  EXPECT_FALSE(bar.isUserInteractionEnabled());
  EXPECT_FALSE(bar.view().isUserInteractionEnabled());
  bar.setUserInteractionEnabled(true);
  EXPECT_TRUE(bar.view().isUserInteractionEnabled());
}

}  // namespace
}  // namespace kindora
