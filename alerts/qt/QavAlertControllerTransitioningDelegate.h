// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/qt/QavAlertAnimationController.h"
#include "toolkit/controllers/UIViewControllerTransitioningDelegate.h"

namespace kindora {

/// Provides what shows how an alert comes and goes: new objects each time.
class QavAlertControllerTransitioningDelegate final : public UIViewControllerTransitioningDelegate {
 public:
  [[nodiscard]] std::shared_ptr<UIPresentationController>
  presentationControllerForPresentedViewController(
      UIViewController& presented, UIViewController& presentingViewController) override;
  [[nodiscard]] std::shared_ptr<UIViewControllerAnimatedTransitioning>
  animationControllerForPresentedController(UIViewController& presented,
                                            UIViewController& presentingController) override;
  [[nodiscard]] std::shared_ptr<UIViewControllerAnimatedTransitioning>
  animationControllerForDismissedController(UIViewController& dismissed) override;
  [[nodiscard]] std::shared_ptr<QavAlertAnimationController> animationControllerForPresentation(
      bool presentation);
};

}  // namespace kindora
