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

  [[nodiscard]] const std::shared_ptr<UIView>& dimmingView() const { return dimmingView_; }

  void presentationTransitionWillBegin() override;
  void dismissalTransitionWillBegin() override;
  void containerViewWillLayoutSubviews() override;

 private:
  void fadeDimmingView(double alpha);

  std::shared_ptr<UIView> dimmingView_ = std::make_shared<UIView>();
};

}  // namespace kindora
