// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertAnimationController.h"

#include <utility>

#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {
namespace {

constexpr double kDuration = 0.404;  // seconds
// Far above critical on purpose: the alert comes to rest without swinging.
constexpr UISpring kSpring{.dampingRatio = 45.71, .initialVelocity = 0};
constexpr double kInitialScale = 1.2;

}  // namespace

double QavAlertAnimationController::transitionDuration(const UITransitionContextRef&) const {
  return kDuration;
}

void QavAlertAnimationController::animateTransition(const UITransitionContextRef& context) {
  using Key = UITransitionContextViewControllerKey;
  UIViewController* controller = context->viewControllerForKey(presentation_ ? Key::to : Key::from);
  const UIViewRef view = controller->view();
  if (presentation_) {
    context->containerView()->addSubview(view);
    view->setFrame(context->finalFrameForViewController(*controller));
    view->setScaling(kInitialScale);
    view->setAlpha(0);
    animate(
        [view] {
          view->setScaling(1);
          view->setAlpha(1);
        },
        context, [context](bool finished) { context->completeTransition(finished); });
  } else {
    animate([view] { view->setAlpha(0); }, context,
            [context, view](bool finished) {
              view->removeFromSuperview();
              context->completeTransition(finished);
            });
  }
}

void QavAlertAnimationController::animate(const std::function<void()>& animations,
                                          const UITransitionContextRef& inContext,
                                          std::function<void(bool)> withCompletion) const {
  animateWithDuration({.duration = transitionDuration(inContext), .spring = kSpring}, animations,
                      [completion = std::move(withCompletion)] { completion(true); });
}

}  // namespace kindora
