// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "effects/keyframes/CAAnimationDelegate.h"
#include "platform/NotificationCenter.h"
#include "platform/Subscription.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {

class QavAlertView;

/// Fills the alert window: a dimmed ground and, above the keyboard, the alert that is visible.
class QavAlertViewController final : public kindora::UIViewController, public CAAnimationDelegate {
  Q_OBJECT

 public:
  using AlertRef = std::shared_ptr<QavAlertView>;

  QavAlertViewController();
  ~QavAlertViewController() override;

  /// Springs the new alert in and, if animated, the old one out; either may be null. The completion
  /// runs once, when the old alert has left: before this returns where nothing moves.
  void replaceAlert(const AlertRef& oldAlert, const AlertRef& withAlert, bool animated,
                    Completion completion);

  [[nodiscard]] const UIViewRef& dimmingView() const { return dimmingView_; }
  [[nodiscard]] const UIViewRef& alertContainerView() const { return alertContainerView_; }
  [[nodiscard]] bool showsDimmingView() const { return showsDimmingView_; }
  /// How far the container's bottom lies below the window's: not above 0.
  [[nodiscard]] const NSLayoutConstraintRef& bottomSpacingConstraint() const {
    return bottomSpacingConstraint_;
  }
  /// True until an alert has been shown, and again once the last one has gone.
  [[nodiscard]] bool presentingFirstAlert() const { return presentingFirstAlert_; }
  [[nodiscard]] bool dismissingLastAlert() const { return dismissingLastAlert_; }

  [[nodiscard]] UIViewRef loadView() override;
  /// The alert is never higher than the window less a margin.
  void viewDidLayoutSubviews() override;
  /// Esc and the system's back press the cancel button of the visible alert, if it has one.
  bool goBack() override;
  void animationDidStop(CAKeyframeAnimation& /*animation*/, bool /*finished*/) override {
    // The transaction tells when all springs have come to rest.
  }

 private:
  void setShowsDimmingView(bool shows);
  void spring(const UIViewRef& view, double fromOpacity, double toOpacity);
  void spring(const UIViewRef& view, double fromOpacity, double toOpacity, double fromScale,
              double toScale);
  void keyboardWillShow(const CGRect& endFrame, double duration);
  void keyboardWillHide(double duration);
  void animateAlertContainerForKeyboardChangeWithDuration(double duration);

  UIViewRef dimmingView_ = std::make_shared<UIView>();
  UIViewRef alertContainerView_ = std::make_shared<UIView>();
  NSLayoutConstraintRef bottomSpacingConstraint_;
  std::weak_ptr<QavAlertView> shownAlert_;
  bool showsDimmingView_ = false;
  bool presentingFirstAlert_ = true;
  bool dismissingLastAlert_ = false;
  Subscription keyboardShows_;
  Subscription keyboardHides_;
};

}  // namespace kindora
