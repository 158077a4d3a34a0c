// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UIWindow.h"

#include "tests/platform/toolkit/ToolkitFixture.h"

namespace kindora {
namespace {

class UIWindowTest : public ToolkitFixture {};

TEST_F(UIWindowTest, ItsRootAppearsWhenItIsMadeVisible) {
  window.setRootViewController(screen("a"));
  EXPECT_EQ(log(), (Lines{}));
  window.makeKeyAndVisible();
  EXPECT_EQ(log(), (Lines{"a: loads", "a: will appear", "a: did appear"}));
}

TEST_F(UIWindowTest, BecomesTheKeyWindow) {
  window.makeKeyAndVisible();
  EXPECT_EQ(UIApplication::sharedApplication()->keyWindow(), &window);
}

TEST_F(UIWindowTest, TellsANewRootOnce) {
  int changes = 0;
  QObject::connect(&window, &UIWindow::rootViewControllerChanged, [&changes] { ++changes; });
  const auto a = screen("a");
  window.setRootViewController(a);
  window.setRootViewController(a);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(window.rootViewController(), a);
}

TEST_F(UIWindowTest, TellsANewTintOnce) {
  int changes = 0;
  QObject::connect(&window, &UIWindow::tintColorChanged, [&changes] { ++changes; });
  window.setTintColor(UIColor::yellowColor());
  window.setTintColor(UIColor::yellowColor());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(window.tintColor(), UIColor::yellowColor());
}

TEST_F(UIWindowTest, WithoutAScreenToGoBackToItDoesNotGoBack) {
  EXPECT_FALSE(window.goBack());
  show(screen("a"));
  EXPECT_FALSE(window.goBack());
}

}  // namespace
}  // namespace kindora
