// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Subscription.h"
#include "toolkit/controllers/PresentationPlace.h"
#include "toolkit/controllers/UIPresentationController.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/controllers/UIViewControllerAnimatedTransitioning.h"
#include "toolkit/controllers/UIViewControllerTransitionCoordinator.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

class UIViewControllerTransitioningDelegate;

/// What a controller presents, from its coming to its going. Made by the controller that presents,
/// which keeps it in its place above.
///
/// A presented controller of a custom style with a delegate comes and goes as the delegate's
/// animators show it, inside a container; any other as a number that its host draws.
class ModalPresentation final : public std::enable_shared_from_this<ModalPresentation> {
 public:
  using Completion = std::function<void()>;

  /// The host outlives the presentation.
  ModalPresentation(PresentationPlace& host, PresentationPlace& presented);
  ~ModalPresentation();
  ModalPresentation(const ModalPresentation&) = delete;
  ModalPresentation& operator=(const ModalPresentation&) = delete;

  [[nodiscard]] UIViewController& host() const { return host_.controller; }
  [[nodiscard]] const UIViewControllerRef& presented() const { return presented_; }
  /// How far the presented controller has come onto the screen, 0 to 1.
  [[nodiscard]] double progress() const { return progress_; }
  /// Null unless the presentation is custom.
  [[nodiscard]] UIPresentationController* presentationController() const {
    return controller_.get();
  }
  /// Null while no custom transition runs.
  [[nodiscard]] UIViewControllerTransitionCoordinator* coordinator() const {
    return coordinator_.get();
  }

  void present(bool animated, Completion completion);
  void dismiss(bool animated, Completion completion);

 private:
  class Context;
  using Animator = std::shared_ptr<UIViewControllerAnimatedTransitioning>;

  /// The delegate of the presented controller, when its style asks for it.
  [[nodiscard]] std::shared_ptr<UIViewControllerTransitioningDelegate> transitioning() const;
  void setProgress(double progress);
  void makeContainer();
  void containerChanged();
  void beginTransition(Animator animator);
  void animateCustom();
  void animateProgress(double from, double to);
  void transitionCompleted(bool didComplete);
  void endTransition();
  void endPresenting();
  void cancelPresenting();
  void finishDismissal();
  void cancelDismissal();
  void takeOut();
  void tell(bool presentedAppears, bool animated);
  void tellEnd(bool presentedAppears);

  PresentationPlace& host_;
  UIViewControllerRef presented_;
  PresentationPlace& presentedPlace_;
  double progress_ = 0;
  QPointer<UIWindow> window_;
  bool dismissing_ = false;
  Completion presentedCompletion_;
  std::vector<Completion> dismissed_;
  ProgressAnimation animation_;

  std::shared_ptr<UIPresentationController> controller_;
  CGRect containerFrame_;
  Subscription containerSubscription_;
  QMetaObject::Connection windowConnection_;
  std::shared_ptr<Context> context_;
  Animator animator_;
  std::shared_ptr<UIViewControllerTransitionCoordinator> coordinator_;
};

}  // namespace kindora
