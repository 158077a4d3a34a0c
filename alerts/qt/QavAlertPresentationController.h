// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIPresentationController.h"

namespace kindora {

/// Dims what an alert is presented over.
class QavAlertPresentationController final : public UIPresentationController {
 public:
  QavAlertPresentationController(UIViewController* presentedViewController,
                                 UIViewController* presentingViewController);

  [[nodiscard]] const UIViewRef& dimmingView() const { return dimmingView_; }

  void presentationTransitionWillBegin() override;
  void dismissalTransitionWillBegin() override;
  void containerViewWillLayoutSubviews() override;

 private:
  void fadeDimmingView(double alpha);

  UIViewRef dimmingView_ = std::make_shared<UIView>();
};

}  // namespace kindora
