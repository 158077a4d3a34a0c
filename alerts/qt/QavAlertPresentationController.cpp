// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertPresentationController.h"

#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/UIViewControllerTransitionCoordinator.h"

namespace kindora {

QavAlertPresentationController::QavAlertPresentationController(
    UIViewController* presentedViewController, UIViewController* presentingViewController)
    : UIPresentationController(presentedViewController, presentingViewController) {
  dimmingView_->setBackgroundColor(UIColor::colorWithWhite(0, 0.4));
}

void QavAlertPresentationController::presentationTransitionWillBegin() {
  if (UIViewController* presenting = presentingViewController()) {
    presenting->view()->setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  }
  dimmingView_->setAlpha(0);
  containerView()->addSubview(dimmingView_);
  fadeDimmingView(1);
}

void QavAlertPresentationController::dismissalTransitionWillBegin() {
  if (UIViewController* presenting = presentingViewController()) {
    presenting->view()->setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  }
  fadeDimmingView(0);
}

void QavAlertPresentationController::containerViewWillLayoutSubviews() {
  dimmingView_->setFrame(containerView()->frame());
}

void QavAlertPresentationController::fadeDimmingView(double alpha) {
  const auto fade = [view = dimmingView_, alpha] { view->setAlpha(alpha); };
  UIViewController* presented = presentedViewController();
  auto* coordinator = presented != nullptr ? presented->transitionCoordinator() : nullptr;
  if (coordinator != nullptr) {
    coordinator->animateAlongsideTransition(fade);
  } else {
    fade();
  }
}

}  // namespace kindora
