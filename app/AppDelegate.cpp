// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppDelegate.h"

#include "app/AppColors.h"
#include "app/AppearanceManager.h"
#include "platform/FatalError.h"
#include "toolkit/controllers/UIApplication.h"

namespace kindora {

AppDelegate& AppDelegate::sharedDelegate() {
  static AppDelegate& delegate = *new AppDelegate;  // outlives the screens
  return delegate;
}

bool AppDelegate::applicationDidFinishLaunching() {
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(true);
  if (window) window->setTintColor(appColor());
  const UIViewControllerRef root = window ? window->rootViewController() : nullptr;
  rootTabBarController = std::dynamic_pointer_cast<UITabBarController>(root);
  if (!rootTabBarController) fatalError("the window's root is no tab bar controller");
  AppearanceManager::configureAppearance();
  return true;
}

}  // namespace kindora
