// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIPresentationController.h"

#include "toolkit/controllers/UIViewController.h"

namespace kindora {

UIPresentationController::UIPresentationController(UIViewController* presented,
                                                   UIViewController* presenting)
    : presented_(presented), presenting_(presenting) {}

UIPresentationController::~UIPresentationController() = default;

UIViewController* UIPresentationController::presentedViewController() const { return presented_; }

UIViewController* UIPresentationController::presentingViewController() const { return presenting_; }

UIViewRef UIPresentationController::presentedView() const {
  return presented_ ? presented_->view() : nullptr;
}

CGRect UIPresentationController::frameOfPresentedViewInContainerView() const {
  return containerView_ ? containerView_->bounds() : CGRect{};
}

}  // namespace kindora
