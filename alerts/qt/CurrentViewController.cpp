// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/CurrentViewController.h"

#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {

UIViewControllerRef qav_currentViewController() {
  const UIWindow* window = UIApplication::sharedApplication()->keyWindow();
  return window != nullptr ? qav_topViewControllerForViewController(window->rootViewController())
                           : nullptr;
}

UIViewControllerRef qav_topViewControllerForViewController(
    const UIViewControllerRef& viewController) {
  if (!viewController) return nullptr;
  // Whatever the top of a stack presents, its navigation controller presents too.
  if (auto* navigation = qobject_cast<UINavigationController*>(viewController.get())) {
    return qav_topViewControllerForViewController(navigation->visibleViewController());
  }
  const UIViewControllerRef presented = viewController->presentedViewController();
  return presented ? qav_topViewControllerForViewController(presented) : viewController;
}

}  // namespace kindora
