// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "app/AppDelegate.h"
#include "main/MainStoryboard.h"
#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "toolkit/controllers/UIAlertController.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {

/// The launched app without a display, on fakes and manual time.
class AppFixture : public ::testing::Test {
 protected:
  AppFixture() {
    delegate().window = std::make_shared<UIWindow>();
    delegate().window->setRootViewController(makeRootTabBarController());
    delegate().applicationDidFinishLaunching();
    delegate().window->makeKeyAndVisible();
    time.settle();
  }

  static AppDelegate& delegate() { return AppDelegate::sharedDelegate(); }
  static ChallengeData& store() { return ChallengeData::sharedInstance(); }
  static UITabBarController& tabs() { return *delegate().rootTabBarController; }
  static UINavigationController& navigation() {
    return dynamic_cast<UINavigationController&>(*tabs().viewControllers().front());
  }
  /// The screen on top of the first tab, as the class it is.
  template <typename Controller>
  static Controller& top() {
    return dynamic_cast<Controller&>(*navigation().topViewController());
  }
  /// The alert on the screen; null when there is none.
  static std::shared_ptr<UIAlertController> alert() {
    return std::dynamic_pointer_cast<UIAlertController>(tabs().presentedViewController());
  }

  FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
};

}  // namespace kindora
