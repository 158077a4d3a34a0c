// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PassOnFromBadges.h"

#include "app/shell/AppDelegate.h"
#include "platform/qt/toolkit/UINavigationController.h"
#include "screens/badges/BadgesViewController.h"

namespace kindora {
namespace {

constexpr int kBadgesTab = 1;

// The controller itself, or the root of the navigation stack that it is.
UIViewController* rootOf(UIViewController* controller) {
  const auto* navigation = qobject_cast<UINavigationController*>(controller);
  return navigation != nullptr ? navigation->viewControllers().front().get() : controller;
}

}  // namespace

void passOnFromBadges(const ChallengeRef& challenge) {
  UITabBarController& tabs = *AppDelegate::sharedDelegate().rootTabBarController;
  if (tabs.viewControllers().size() > kBadgesTab) {
    if (auto* badges =
            qobject_cast<BadgesViewController*>(rootOf(tabs.viewControllers()[kBadgesTab].get()))) {
      badges->setChallengeToPassOn(challenge);
    }
  }
  tabs.setSelectedIndex(kBadgesTab);
}

}  // namespace kindora
