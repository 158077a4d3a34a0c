// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertControllerTransitioningDelegate.h"

#include "alerts/qt/QavAlertPresentationController.h"

namespace kindora {

std::shared_ptr<UIPresentationController>
QavAlertControllerTransitioningDelegate::presentationControllerForPresentedViewController(
    UIViewController& presented, UIViewController& presentingViewController) {
  return std::make_shared<QavAlertPresentationController>(&presented, &presentingViewController);
}

std::shared_ptr<UIViewControllerAnimatedTransitioning>
QavAlertControllerTransitioningDelegate::animationControllerForPresentedController(
    UIViewController& /*presented*/, UIViewController& /*presentingController*/) {
  return animationControllerForPresentation(true);
}

std::shared_ptr<UIViewControllerAnimatedTransitioning>
QavAlertControllerTransitioningDelegate::animationControllerForDismissedController(
    UIViewController& /*dismissed*/) {
  return animationControllerForPresentation(false);
}

std::shared_ptr<QavAlertAnimationController>
QavAlertControllerTransitioningDelegate::animationControllerForPresentation(bool presentation) {
  return std::make_shared<QavAlertAnimationController>(presentation);
}

}  // namespace kindora
