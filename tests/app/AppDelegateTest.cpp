// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "app/AppColors.h"
#include "main/MainStoryboard.h"
#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

// The app before its launch.
class AppDelegateTest : public ::testing::Test {
 protected:
  ~AppDelegateTest() override {
    application().setApplicationSupportsShakeToEdit(false);
    UINavigationBar::appearance() = {};
    UITabBarItem::appearance() = {};
  }

  static UIApplication& application() { return *UIApplication::sharedApplication(); }
  void makeWindow() {
    delegate.window = std::make_shared<UIWindow>();
    delegate.window->setRootViewController(makeRootTabBarController());
  }

  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  AppDelegate delegate;
};

TEST_F(AppDelegateTest, IsOneForTheApp) {
  EXPECT_EQ(&AppDelegate::sharedDelegate(), &AppDelegate::sharedDelegate());
}

TEST_F(AppDelegateTest, HasNothingBeforeTheLaunch) {
  EXPECT_EQ(delegate.window, nullptr);
  EXPECT_EQ(delegate.rootTabBarController, nullptr);
}

TEST_F(AppDelegateTest, TheLaunchSucceeds) {
  makeWindow();
  EXPECT_TRUE(delegate.applicationDidFinishLaunching());
}

TEST_F(AppDelegateTest, SupportsShakesAfterTheLaunch) {
  makeWindow();
  EXPECT_FALSE(application().applicationSupportsShakeToEdit());
  delegate.applicationDidFinishLaunching();
  EXPECT_TRUE(application().applicationSupportsShakeToEdit());
}

TEST_F(AppDelegateTest, TintsTheWindowWithTheAppColour) {
  makeWindow();
  delegate.applicationDidFinishLaunching();
  EXPECT_EQ(delegate.window->tintColor(), appColor());
}

TEST_F(AppDelegateTest, KeepsTheRootTabBarController) {
  makeWindow();
  delegate.applicationDidFinishLaunching();
  EXPECT_EQ(delegate.rootTabBarController, delegate.window->rootViewController());
}

TEST_F(AppDelegateTest, ConfiguresTheAppearance) {
  makeWindow();
  delegate.applicationDidFinishLaunching();
  EXPECT_EQ(UINavigationBar::appearance().barTintColor, appColor());
  EXPECT_EQ(UITabBarItem::appearance().titleFont, (UIFont{"AvenirNext-Medium", 11}));
}

TEST_F(AppDelegateTest, SupportsShakesBeforeItTintsTheWindow) {
  makeWindow();
  bool supportedThen = false;
  QObject::connect(delegate.window.get(), &UIWindow::tintColorChanged,
                   [&] { supportedThen = application().applicationSupportsShakeToEdit(); });
  delegate.applicationDidFinishLaunching();
  EXPECT_TRUE(supportedThen);
}

TEST_F(AppDelegateTest, TintsTheWindowBeforeItLooksForTheRoot) {
  makeWindow();
  bool rootKnownThen = true;
  bool barsDressedThen = true;
  QObject::connect(delegate.window.get(), &UIWindow::tintColorChanged, [&] {
    rootKnownThen = delegate.rootTabBarController != nullptr;
    barsDressedThen = UINavigationBar::appearance().barTintColor == appColor();
  });
  delegate.applicationDidFinishLaunching();
  EXPECT_FALSE(rootKnownThen);
  EXPECT_FALSE(barsDressedThen);
}

TEST_F(AppDelegateTest, AMissingRootStopsAfterTheWindowWasTinted) {
  delegate.window = std::make_shared<UIWindow>();
  QObject::connect(delegate.window.get(), &UIWindow::tintColorChanged,
                   [] { std::fputs("tinted, ", stderr); });
  EXPECT_DEATH(delegate.applicationDidFinishLaunching(), "tinted, .*fatal error");
}

TEST_F(AppDelegateTest, AMissingWindowStops) {
  EXPECT_DEATH(delegate.applicationDidFinishLaunching(),
               "fatal error: the window's root is no tab bar controller");
}

TEST_F(AppDelegateTest, AMissingRootStops) {
  delegate.window = std::make_shared<UIWindow>();
  EXPECT_DEATH(delegate.applicationDidFinishLaunching(),
               "fatal error: the window's root is no tab bar controller");
}

TEST_F(AppDelegateTest, ARootThatIsNoTabBarControllerStops) {
  delegate.window = std::make_shared<UIWindow>();
  delegate.window->setRootViewController(
      makeViewController<UINavigationController>(makeViewController<UIViewController>()));
  EXPECT_DEATH(delegate.applicationDidFinishLaunching(),
               "fatal error: the window's root is no tab bar controller");
}

TEST_F(AppDelegateTest, TheLaunchTouchesNothingElse) {
  makeWindow();
  delegate.applicationDidFinishLaunching();
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
  EXPECT_EQ(fakes.http->sessionCount(), 0u);
  EXPECT_TRUE(fakes.console->lines().empty());
  for (const auto& tab : delegate.rootTabBarController->viewControllers()) {
    EXPECT_FALSE(tab->isViewLoaded());
  }
}

// The seed's pictures tell when the store was made: it holds those that the bundle gave then.
TEST_F(AppDelegateTest, TheListMakesTheStoreAndNotTheLaunch) {
  const auto picture = [] { return UIImage::imageWithRaster(Raster(1, 1)); };
  const UIImageRef before = picture();
  const UIImageRef afterLaunch = picture();
  const UIImageRef afterLoad = picture();
  fakes.bundle->setImage("coffee", before);
  makeWindow();
  delegate.applicationDidFinishLaunching();
  fakes.bundle->setImage("coffee", afterLaunch);
  delegate.window->makeKeyAndVisible();
  fakes.bundle->setImage("coffee", afterLoad);
  EXPECT_EQ(ChallengeData::sharedInstance().newChallenges.at(0)->challengeImage, afterLaunch);
}

TEST_F(AppDelegateTest, ComingAndGoingChangesNothing) {
  makeWindow();
  delegate.applicationDidFinishLaunching();
  delegate.window->makeKeyAndVisible();
  const auto newChallenges = ChallengeData::sharedInstance().newChallenges;
  delegate.applicationWillResignActive();
  delegate.applicationDidEnterBackground();
  delegate.applicationWillEnterForeground();
  delegate.applicationDidBecomeActive();
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
  EXPECT_EQ(delegate.rootTabBarController, delegate.window->rootViewController());
  EXPECT_EQ(ChallengeData::sharedInstance().newChallenges, newChallenges);
}

}  // namespace
}  // namespace kindora
