// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITabBarController.h"

#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {

UITabBarController::UITabBarController(const std::vector<UIViewControllerRef>& viewControllers) {
  for (const auto& controller : viewControllers) {
    setParentOf(*controller, this);
    pages_.append(controller);
    tabBar_.addTab();
  }
}

UITabBarController::~UITabBarController() {
  for (const auto& controller : pages_.items()) setParentOf(*controller, nullptr);
}

const UIViewControllerRef& UITabBarController::selected() const {
  return pages_.items()[static_cast<std::size_t>(selectedIndex_)];
}

void UITabBarController::setSelectedIndex(int index) {
  if (index == selectedIndex_ || index < 0 || index >= pages_.count()) return;
  const UIViewControllerRef leaving = selected();
  selectedIndex_ = index;
  const UIViewControllerRef arriving = selected();
  arriving->loadViewIfNeeded();
  emit selectedIndexChanged();
  if (!isComingOrVisible()) return;
  leaving->beginAppearanceTransition(false, false);
  arriving->beginAppearanceTransition(true, false);
  leaving->endAppearanceTransition();
  arriving->endAppearanceTransition();
}

void UITabBarController::pressTab(int index) {
  if (!tabBar_.isUserInteractionEnabled() || hasCoveringSubview(*view())) return;
  if (index != selectedIndex_) {
    setSelectedIndex(index);
  } else if (auto* navigation = qobject_cast<UINavigationController*>(selected().get());
             navigation != nullptr && navigation->canGoBack()) {
    navigation->popToRootViewController(true);
  }
}

std::vector<UIViewController*> UITabBarController::visibleChildren() const {
  return {selected().get()};
}

bool UITabBarController::goBack() { return hasCoveringSubview(*view()) || selected()->goBack(); }

QUrl UITabBarController::page() const { return pageUrl(u"Kindora.Toolkit.Hosts", u"TabHost"); }

}  // namespace kindora
