// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/controllers/UIPresentationController.h"
#include "toolkit/controllers/UIViewControllerAnimatedTransitioning.h"

namespace kindora {

/// Provides what makes up a presentation in a way of its own. It is asked once for each.
class UIViewControllerTransitioningDelegate {
 public:
  virtual ~UIViewControllerTransitioningDelegate() = default;
  /// Null for one that adds nothing.
  [[nodiscard]] virtual std::shared_ptr<UIPresentationController>
  presentationControllerForPresentedViewController(UIViewController& presented,
                                                   UIViewController& presentingViewController) = 0;
  /// Null for no animation.
  [[nodiscard]] virtual std::shared_ptr<UIViewControllerAnimatedTransitioning>
  animationControllerForPresentedController(UIViewController& presented,
                                            UIViewController& presentingController) = 0;
  /// Null for no animation.
  [[nodiscard]] virtual std::shared_ptr<UIViewControllerAnimatedTransitioning>
  animationControllerForDismissedController(UIViewController& dismissed) = 0;
};

}  // namespace kindora
