// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/PassOnFromBadges.h"

#include "app/AppDelegate.h"
#include "screens/badges/BadgesTab.h"
#include "screens/badges/BadgesViewController.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

BadgesViewController* badgesScreen(UIViewController& tab) {
  const auto* navigation = dynamic_cast<const UINavigationController*>(&tab);
  return dynamic_cast<BadgesViewController*>(
      navigation != nullptr ? navigation->viewControllers().front().get() : &tab);
}

}  // namespace

void passOnFromBadges(const ChallengeRef& challenge) {
  UITabBarController& tabs = *AppDelegate::sharedDelegate().rootTabBarController;
  if (tabs.viewControllers().size() <= kBadgesTab) return;
  if (BadgesViewController* badges = badgesScreen(*tabs.viewControllers()[kBadgesTab])) {
    badges->setChallengeToPassOn(challenge);
  }
  tabs.setSelectedIndex(kBadgesTab);
}

}  // namespace kindora
