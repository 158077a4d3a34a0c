// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITabBar.h"

#include <algorithm>

#include "toolkit/view/UIControl.h"

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

UITabBar::UITabBar() {
  view_->setName("tabBar");
  view_->setPlacer(UIViewPlacer::page);
  std::weak_ptr<UIView> hairline;
  connectOutlet(hairline, "hairline", *view_);
}

void UITabBar::setUserInteractionEnabled(bool enabled) {
  if (isUserInteractionEnabled() == enabled) return;
  view_->setUserInteractionEnabled(enabled);
  emit userInteractionEnabledChanged();
}

void UITabBar::addTab() {
  const auto controls = std::ranges::count_if(view_->subviews(), [](const auto& view) {
    return dynamic_cast<const UIControl*>(view.get()) != nullptr;
  });
  std::weak_ptr<UIControl> tab;
  connectOutlet(tab, "tab" + std::to_string(controls), *view_);
}

UIViewRef UITabBar::outlet(std::string_view name) { return view_->viewWithName(name); }

}  // namespace kindora
