// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UITabBar.h"

namespace kindora {

UITabBarItemAppearance& UITabBarItem::appearance() {
  static UITabBarItemAppearance look;
  return look;
}

void UITabBarItem::setTitleAndImage(const QString& title, const QString& imageName) {
  if (title_ == title && imageName_ == imageName) return;
  title_ = title;
  imageName_ = imageName;
  emit changed();
}

void UITabBarItem::setBadgeValue(const QString& value) {
  if (badgeValue_ == value && badgeValue_.isNull() == value.isNull()) return;
  badgeValue_ = value;
  emit changed();
}

void UITabBar::setUserInteractionEnabled(bool enabled) {
  if (userInteractionEnabled_ == enabled) return;
  userInteractionEnabled_ = enabled;
  emit userInteractionEnabledChanged();
}

}  // namespace kindora
