// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ViewControllerItems.h"

#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/controllers/UITabBar.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

ViewControllerItems::ViewControllerItems(UIViewController& self)
    : self_(self),
      navigationItem_(std::make_unique<UINavigationItem>()),
      tabBarItem_(std::make_unique<UITabBarItem>()) {}

ViewControllerItems::~ViewControllerItems() = default;

void ViewControllerItems::setTitle(const QString& title) {
  navigationItem_->setTitle(title);
  if (title_ == title) return;
  title_ = title;
  emit self_.titleChanged();
}

}  // namespace kindora
