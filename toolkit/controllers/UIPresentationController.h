// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <memory>

#include "toolkit/view/UIView.h"

namespace kindora {

class UIViewController;

/// Arranges what surrounds a controller presented in a way of its own: the views beside it in the
/// container, and its place there. Lives from the presentation to the end of the dismissal.
class UIPresentationController {
 public:
  UIPresentationController(UIViewController* presented, UIViewController* presenting);
  virtual ~UIPresentationController();
  UIPresentationController(const UIPresentationController&) = delete;
  UIPresentationController& operator=(const UIPresentationController&) = delete;

  [[nodiscard]] UIViewController* presentedViewController() const;
  /// The container of controllers that presents. Null once it has gone.
  [[nodiscard]] UIViewController* presentingViewController() const;
  /// What holds all views of the presentation, as large as the window. Null before the presentation
  /// begins.
  [[nodiscard]] const UIViewRef& containerView() const { return containerView_; }
  [[nodiscard]] UIViewRef presentedView() const;

  virtual void presentationTransitionWillBegin() {}
  /// Not completed: the transition was given up, and nothing is presented any more.
  virtual void presentationTransitionDidEnd(bool /*completed*/) {}
  virtual void dismissalTransitionWillBegin() {}
  /// Not completed: the transition was given up, and the controller stays.
  virtual void dismissalTransitionDidEnd(bool /*completed*/) {}
  /// Around each change of the container's frame, and once when the presentation begins.
  virtual void containerViewWillLayoutSubviews() {}
  virtual void containerViewDidLayoutSubviews() {}
  /// Where the presented view ends, in the container's space: all of it unless overridden.
  [[nodiscard]] virtual CGRect frameOfPresentedViewInContainerView() const;

 private:
  friend class ModalPresentation;

  QPointer<UIViewController> presented_;
  QPointer<UIViewController> presenting_;
  UIViewRef containerView_;
};

}  // namespace kindora
