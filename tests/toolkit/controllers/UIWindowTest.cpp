// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIWindow.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

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

// --- Visible and hidden ---

TEST_F(UIWindowTest, IsHiddenUntilItIsMadeVisible) {
  EXPECT_TRUE(window.isHidden());
  EXPECT_FALSE(window.isKeyWindow());
  show(screen("a"));
  EXPECT_FALSE(window.isHidden());
  EXPECT_TRUE(window.isKeyWindow());
}

TEST_F(UIWindowTest, ItsRootDisappearsWhenItIsHidden) {
  show(screen("a"));
  log();
  window.setHidden(true);
  EXPECT_EQ(log(), (Lines{"a: will disappear", "a: did disappear"}));
  EXPECT_FALSE(window.isKeyWindow());
  EXPECT_TRUE(UIApplication::sharedApplication()->windows().empty());
}

TEST_F(UIWindowTest, ARootSetWhileItIsVisibleTakesOver) {
  show(screen("a"));
  log();
  window.setRootViewController(screen("b"));
  EXPECT_EQ(log(), (Lines{"a: will disappear", "a: did disappear", "b: loads", "b: will appear",
                          "b: did appear"}));
}

TEST_F(UIWindowTest, TellsWhenItBecomesKeyAndWhenItNoLongerIs) {
  std::vector<bool> heard;
  QObject::connect(&window, &UIWindow::keyChanged, [&] { heard.push_back(window.isKeyWindow()); });
  window.makeKeyAndVisible();
  UIWindow other;
  other.makeKeyAndVisible();
  EXPECT_EQ(heard, (std::vector{true, false}));
}

TEST_F(UIWindowTest, AWindowHeldByNobodyIsHiddenAtOnceAndGivesKeyToNobody) {
  show(screen("a"));
  auto alert = makeWindow();
  alert->setRootViewController(screen("b"));
  alert->makeKeyAndVisible();
  log();
  alert.reset();
  EXPECT_EQ(log(), (Lines{"b: will disappear", "b: did disappear"}));
  EXPECT_EQ(UIApplication::sharedApplication()->windows(), std::vector<UIWindow*>{&window});
  EXPECT_EQ(UIApplication::sharedApplication()->keyWindow(), nullptr);
  window.makeKeyAndVisible();
  EXPECT_TRUE(window.isKeyWindow());
  EXPECT_EQ(log(), Lines{});
}

// --- Levels ---

TEST_F(UIWindowTest, LevelsHaveThePhonesValues) {
  EXPECT_EQ(UIWindowLevelNormal, 0);
  EXPECT_EQ(UIWindowLevelAlert, 2000);
  EXPECT_EQ(window.windowLevel(), UIWindowLevelNormal);
}

// --- Size ---

TEST_F(UIWindowTest, ARootViewMadeInCodeIsAsLargeAsTheWindow) {
  class BareController final : public UIViewController {
    UIViewRef loadView() override { return std::make_shared<UIView>(); }
  };
  window.reportSize(320, 480);
  const auto root = makeViewController<BareController>();
  show(root);
  EXPECT_EQ(root->view()->frame(), (CGRect{{0, 0}, {320, 480}}));
  window.reportSize(480, 320);
  EXPECT_EQ(root->view()->frame(), window.bounds());
}

TEST_F(UIWindowTest, LeavesARootViewOfAStoryboardToItsItem) {
  window.reportSize(320, 480);
  const auto root = screen("a");
  show(root);
  EXPECT_EQ(root->view()->frame(), CGRect{});
}

TEST_F(UIWindowTest, TellsANewSizeOnce) {
  int changes = 0;
  QObject::connect(&window, &UIWindow::sizeChanged, [&changes] { ++changes; });
  window.reportSize(320, 480);
  window.reportSize(320, 480);
  EXPECT_EQ(changes, 1);
}

// --- Tint ---

TEST_F(UIWindowTest, HasTheToolkitsTintAtFirst) {
  EXPECT_EQ(window.tintColor(), kDefaultTintColor);
}

TEST_F(UIWindowTest, DrawsItsTintInGreyWhileItIsDimmed) {
  int changes = 0;
  QObject::connect(&window, &UIWindow::tintColorChanged, [&changes] { ++changes; });
  window.setTintColor({1, 0, 0, 1});
  window.setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  window.setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(window.tintAdjustmentMode(), UIViewTintAdjustmentMode::dimmed);
  EXPECT_EQ(window.tintColor(), (UIColor{1, 0, 0, 1}));
  EXPECT_EQ(window.drawnTintColor(), (UIColor{0.299, 0.299, 0.299, 1}));
  window.setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  EXPECT_EQ(window.drawnTintColor(), window.tintColor());
}

}  // namespace
}  // namespace kindora
