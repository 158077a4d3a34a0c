// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ModalPresentation.h"

#include <cmath>
#include <utility>

#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/UIViewControllerTransitioningDelegate.h"

namespace kindora {

using Key = UITransitionContextViewControllerKey;

// Outlives the transition where the animator keeps it, and is of no effect then.
class ModalPresentation::Context final : public UIViewControllerContextTransitioning {
 public:
  explicit Context(ModalPresentation& owner)
      : owner_(owner.weak_from_this()),
        container_(owner.controller_->containerView()),
        presenting_(&owner.host()),
        presented_(owner.presented_.get()),
        dismisses_(owner.dismissing_),
        presentedFrame_(owner.controller_->frameOfPresentedViewInContainerView()) {}

  UIViewRef containerView() const override { return container_; }
  UIViewController* viewControllerForKey(Key key) const override {
    return (key == Key::to) != dismisses_ ? presented_ : presenting_;
  }
  CGRect finalFrameForViewController(const UIViewController& controller) const override {
    return &controller == presented_ ? presentedFrame_ : container_->bounds();
  }
  void completeTransition(bool didComplete) override {
    const std::shared_ptr<ModalPresentation> owner = owner_.lock();
    if (owner && owner->context_.get() == this) owner->transitionCompleted(didComplete);
  }

 private:
  std::weak_ptr<ModalPresentation> owner_;
  UIViewRef container_;
  QPointer<UIViewController> presenting_;
  QPointer<UIViewController> presented_;
  bool dismisses_;
  CGRect presentedFrame_;
};

ModalPresentation::ModalPresentation(PresentationPlace& host, PresentationPlace& presented)
    : host_(host),
      presented_(presented.controller.shared_from_this()),
      presentedPlace_(presented) {}

ModalPresentation::~ModalPresentation() {
  QObject::disconnect(windowConnection_);
  // A presenter that goes takes along what it presents.
  if (window_) window_->presentations()->remove(presented_);
}

std::shared_ptr<UIViewControllerTransitioningDelegate> ModalPresentation::transitioning() const {
  const bool custom = presented_->modalPresentationStyle() == UIModalPresentationStyle::custom;
  return custom ? presented_->transitioningDelegate() : nullptr;
}

void ModalPresentation::setProgress(double progress) {
  if (progress_ == progress) return;
  progress_ = progress;
  emit presented_->presentationProgressChanged();
}

// --- Coming ---

void ModalPresentation::present(bool animated, Completion completion) {
  const auto self = shared_from_this();
  presentedCompletion_ = std::move(completion);
  presentedPlace_.below = self;
  window_ = host().window();
  presented_->loadViewIfNeeded();
  const auto delegate = transitioning();
  if (delegate) {
    controller_ = delegate->presentationControllerForPresentedViewController(*presented_, host());
    if (!controller_) {
      controller_ = std::make_shared<UIPresentationController>(presented_.get(), &host());
    }
    makeContainer();
    beginTransition(animated
                        ? delegate->animationControllerForPresentedController(*presented_, host())
                        : nullptr);
    controller_->presentationTransitionWillBegin();
    controller_->containerViewWillLayoutSubviews();
    controller_->containerViewDidLayoutSubviews();
  }
  animated = delegate ? animator_ != nullptr : animated;
  setProgress(animated ? 0 : 1);
  if (window_) window_->presentations()->append(presented_);
  tell(true, animated);
  if (host_.above != self || dismissing_) return;
  if (animated && delegate) {
    animateCustom();
  } else if (animated) {
    animateProgress(0, 1);
  } else {
    if (delegate) {
      controller_->containerView()->addSubview(presented_->view());
      presented_->view()->setFrame(controller_->frameOfPresentedViewInContainerView());
      coordinator_->begin();
    }
    endPresenting();
  }
}

void ModalPresentation::makeContainer() {
  const auto container = std::make_shared<UIView>();
  container->setFrame(window_ ? window_->bounds() : host().view()->bounds());
  containerFrame_ = container->frame();
  controller_->containerView_ = container;
  containerSubscription_ = container->observe([this] { containerChanged(); });
  if (window_) {
    windowConnection_ = QObject::connect(window_, &UIWindow::sizeChanged, [this] {
      const UIViewRef resized = controller_->containerView();
      resized->setFrame(window_->bounds());
    });
  }
}

void ModalPresentation::containerChanged() {
  const auto self = shared_from_this();
  const CGRect before = containerFrame_;
  containerFrame_ = controller_->containerView()->frame();
  if (containerFrame_ == before) return;
  controller_->containerViewWillLayoutSubviews();
  if (host_.above != self) return;
  const UIViewRef view = presented_->view();
  if (view->superview() == controller_->containerView()) {
    // By as much as the container, so that room left at an edge stays.
    const CGRect frame = view->frame();
    view->setFrame({frame.origin,
                    {frame.size.width + containerFrame_.size.width - before.size.width,
                     frame.size.height + containerFrame_.size.height - before.size.height}});
  }
  controller_->containerViewDidLayoutSubviews();
}

void ModalPresentation::endPresenting() {
  const auto self = shared_from_this();
  if (coordinator_) {
    setProgress(1);
    controller_->presentationTransitionDidEnd(true);
    endTransition();
  }
  // Whatever is told here may dismiss at once what has just come.
  const Completion completion = std::exchange(presentedCompletion_, {});
  tellEnd(true);
  if (completion) completion();
}

void ModalPresentation::cancelPresenting() {
  takeOut();
  controller_->presentationTransitionDidEnd(false);
  endTransition();
  tell(false, true);
  tellEnd(false);
}

// --- Transitions ---

void ModalPresentation::beginTransition(Animator animator) {
  animator_ = std::move(animator);
  if (animator_) context_ = std::make_shared<Context>(*this);
  coordinator_ = std::make_shared<UIViewControllerTransitionCoordinator>(
      animator_ ? animator_->transitionDuration(context_) : 0, animator_ != nullptr);
}

void ModalPresentation::animateCustom() {
  const auto self = shared_from_this();
  const auto coordinator = coordinator_;
  const Animator animator = animator_;
  animator->animateTransition(context_);
  coordinator->begin();
}

void ModalPresentation::animateProgress(double from, double to) {
  animation_ = ProgressAnimation(
      {.duration = presented_->presentationDuration() * std::abs(to - from),
       .curve = UIViewAnimationCurve::easeOut},
      [this, from, to](double done) { setProgress(from + (to - from) * done); },
      [this] { dismissing_ ? finishDismissal() : endPresenting(); });
}

void ModalPresentation::transitionCompleted(bool didComplete) {
  if (dismissing_) {
    didComplete ? finishDismissal() : cancelDismissal();
  } else {
    didComplete ? endPresenting() : cancelPresenting();
  }
}

void ModalPresentation::endTransition() {
  context_.reset();  // what the animator says from now on is too late
  animator_.reset();
  if (const auto coordinator = std::exchange(coordinator_, nullptr)) coordinator->end();
}

// --- Going ---

void ModalPresentation::dismiss(bool animated, Completion completion) {
  const auto self = shared_from_this();
  if (completion) dismissed_.push_back(std::move(completion));
  if (dismissing_) return;
  // Whatever stands above it goes with it.
  if (const auto above = presentedPlace_.above) above->dismiss(false, {});
  animation_ = {};
  endPresenting();
  if (host_.above != self || dismissing_) return;
  dismissing_ = true;
  if (controller_) {
    const auto delegate = transitioning();
    beginTransition(animated && delegate
                        ? delegate->animationControllerForDismissedController(*presented_)
                        : nullptr);
    controller_->dismissalTransitionWillBegin();
    animated = animator_ != nullptr;
  }
  tell(false, animated);
  if (!animated) {
    if (coordinator_) coordinator_->begin();
    finishDismissal();
  } else if (controller_) {
    animateCustom();
  } else {
    animateProgress(progress_, 0);
  }
}

void ModalPresentation::finishDismissal() {
  const auto self = shared_from_this();
  takeOut();
  if (controller_) {
    controller_->dismissalTransitionDidEnd(true);
    endTransition();
  }
  tellEnd(false);
  for (const Completion& completion : dismissed_) completion();
}

void ModalPresentation::cancelDismissal() {
  const auto self = shared_from_this();
  dismissing_ = false;
  dismissed_.clear();
  controller_->dismissalTransitionDidEnd(false);
  endTransition();
  tell(true, true);
  tellEnd(true);
}

// Nothing is presented from here on.
void ModalPresentation::takeOut() {
  const auto self = std::exchange(host_.above, nullptr);
  presentedPlace_.below.reset();
  setProgress(0);
  if (controller_) presented_->view()->removeFromSuperview();
  if (window_) window_->presentations()->remove(presented_);
  window_ = nullptr;
}

// --- Appearance ---

void ModalPresentation::tell(bool presentedAppears, bool animated) {
  const auto tellHost = [&] {
    if (presented_->coversPresenter()) {
      host().beginAppearanceTransition(!presentedAppears, animated);
    }
  };
  // Whoever goes hears it first.
  if (presentedAppears) tellHost();
  presented_->beginAppearanceTransition(presentedAppears, animated);
  if (!presentedAppears) tellHost();
}

void ModalPresentation::tellEnd(bool presentedAppears) {
  if (!presentedAppears) presented_->endAppearanceTransition();
  if (presented_->coversPresenter()) host().endAppearanceTransition();
  if (presentedAppears) presented_->endAppearanceTransition();
}

}  // namespace kindora
