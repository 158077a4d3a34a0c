// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/shell/AppearanceManager.h"

#include "app/AppColors.h"
#include "app/shell/AppFont.h"
#include "platform/qt/toolkit/UINavigationController.h"
#include "platform/qt/toolkit/UITabBar.h"

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
