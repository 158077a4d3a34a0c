// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

/// Starts the app and keeps what screens reach through it.
class AppDelegate final {
 public:
  /// Set from the storyboard before the launch.
  std::shared_ptr<UIWindow> window;
  /// The window's root, kept at launch.
  std::shared_ptr<UITabBarController> rootTabBarController;

  /// The delegate of the running app; made at the first call.
  [[nodiscard]] static AppDelegate& sharedDelegate();

  /// Stops when there is no window, or its root is no tab bar controller. Returns true.
  bool applicationDidFinishLaunching();
  void applicationWillResignActive() {}
  void applicationDidEnterBackground() {}
  void applicationWillEnterForeground() {}
  void applicationDidBecomeActive() {}
};

}  // namespace kindora
