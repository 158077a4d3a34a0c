// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppearanceManager.h"

#include "app/AppColors.h"
#include "app/AppFont.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBar.h"

namespace kindora {

void AppearanceManager::configureAppearance() {
  UINavigationBarAppearance& bar = UINavigationBar::appearance();
  bar.barTintColor = appColor();
  bar.tintColor = UIColor::whiteColor();
  bar.titleColor = UIColor::whiteColor();
  bar.titleFont = appFont(20);
  UITabBarItem::appearance().titleFont = appFont(11);
}

}  // namespace kindora
