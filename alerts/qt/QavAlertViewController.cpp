// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertViewController.h"

#include <any>
#include <utility>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/QavAlertViewColors.h"
#include "effects/keyframes/TovSpringAnimation.h"
#include "effects/qt/LayerAnimations.h"
#include "platform/KeyboardNotification.h"
#include "toolkit/controllers/UIViewAnimation.h"

namespace kindora {
namespace {

constexpr double kSpringDuration = 0.5058237314224243;  // seconds
constexpr double kDamping = 500;
constexpr double kMass = 3;
constexpr double kStiffness = 1000;
constexpr double kScaleBefore = 1.26;
constexpr double kScaleAfter = 0.84;
constexpr double kVerticalMargins = 40;  // points, both together

std::unique_ptr<TovSpringAnimation> makeSpring(const std::shared_ptr<CAAnimationDelegate>& delegate,
                                               NSValue from, NSValue to) {
  auto spring = std::make_unique<TovSpringAnimation>();
  spring->setDuration(kSpringDuration);
  spring->setDamping(kDamping);
  spring->setMass(kMass);
  spring->setStiffness(kStiffness);
  spring->setVelocity(0);
  spring->setAllowsOverdamping(false);
  spring->setDelegate(delegate);
  spring->setFromValue(std::move(from));
  spring->setToValue(std::move(to));
  return spring;
}

NSValue scaledBy(double factor) {
  return NSValue::valueWithCATransform3D(CATransform3DMakeScale(factor, factor, 1));
}

}  // namespace

QavAlertViewController::QavAlertViewController() {
  NotificationCenter& center = NotificationCenter::defaultCenter();
  keyboardShows_ = center.observe(UIKeyboardWillShowNotification, [this](const std::any& info) {
    const auto& keyboard = std::any_cast<const KeyboardNotification&>(info);
    keyboardWillShow(keyboard.endFrame, keyboard.duration);
  });
  keyboardHides_ = center.observe(UIKeyboardWillHideNotification, [this](const std::any& info) {
    keyboardWillHide(std::any_cast<const KeyboardNotification&>(info).duration);
  });
}

QavAlertViewController::~QavAlertViewController() = default;

UIViewRef QavAlertViewController::loadView() {
  auto root = std::make_shared<UIView>();
  dimmingView_->setBackgroundColor(qav_dimmedBackgroundColor());
  dimmingView_->setAlpha(0);
  for (const auto& view : {dimmingView_, alertContainerView_}) {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    root->addSubview(view);
  }
  qav_alignEdgesWithSuperview(dimmingView_, UIRectEdge::all);
  qav_alignEdgesWithSuperview(alertContainerView_,
                              UIRectEdge::top | UIRectEdge::left | UIRectEdge::right);
  bottomSpacingConstraint_ = qav_alignEdge(alertContainerView_, UIRectEdge::bottom, root);
  return root;
}

void QavAlertViewController::viewDidLayoutSubviews() {
  UIViewController::viewDidLayoutSubviews();
  const auto alert = shownAlert_.lock();
  if (!alert) return;
  QavAlertViewContentView& content = *alert->alertContentView();
  content.setMaximumSize(
      {content.maximumSize().width, view()->frame().size.height - kVerticalMargins});
}

// --- Transitions ---

void QavAlertViewController::replaceAlert(const AlertRef& oldAlert, const AlertRef& withAlert,
                                          bool animated, Completion completion) {
  loadViewIfNeeded();
  dismissingLastAlert_ = !withAlert;
  setShowsDimmingView(!dismissingLastAlert_);
  shownAlert_ = withAlert;
  if (withAlert) {
    alertContainerView_->addSubview(withAlert);
    qav_centerInSuperview(withAlert);
    withAlert->setUserInteractionEnabled(true);
    withAlert->becomeFirstResponder();
  }
  if (oldAlert) {
    // A second press on its way out would choose a second time.
    oldAlert->setUserInteractionEnabled(false);
    oldAlert->resignFirstResponder();
  }
  const auto end = [self = shared_from_this(), this, oldAlert, isLast = !withAlert,
                    completion = std::move(completion)] {
    presentingFirstAlert_ = isLast;
    if (oldAlert) oldAlert->removeFromSuperview();
    if (completion) completion();
  };
  performInAnimationTransaction(
      [&] {
        if (oldAlert && animated) spring(oldAlert, 1, 0, 1, kScaleAfter);
        if (withAlert) spring(withAlert, 0, 1, kScaleBefore, 1);
      },
      end);
}

void QavAlertViewController::setShowsDimmingView(bool shows) {
  if (std::exchange(showsDimmingView_, shows) == shows) return;
  spring(dimmingView_, shows ? 0 : 1, shows ? 1 : 0);
}

void QavAlertViewController::spring(const UIViewRef& view, double fromOpacity, double toOpacity) {
  const auto self = std::static_pointer_cast<QavAlertViewController>(shared_from_this());
  view->setAlpha(toOpacity);
  addAnimation(view,
               *makeSpring(self, NSValue::numberWithDouble(fromOpacity),
                           NSValue::numberWithDouble(toOpacity)),
               "opacity");
}

void QavAlertViewController::spring(const UIViewRef& view, double fromOpacity, double toOpacity,
                                    double fromScale, double toScale) {
  const auto self = std::static_pointer_cast<QavAlertViewController>(shared_from_this());
  spring(view, fromOpacity, toOpacity);
  view->setScaling(toScale);
  addAnimation(view, *makeSpring(self, scaledBy(fromScale), scaledBy(toScale)), "transform");
}

bool QavAlertViewController::goBack() {
  const auto alert = shownAlert_.lock();
  // One that was answered takes no further presses.
  if (!alert || alert->cancelButtonIndex() < 0 || !alert->isUserInteractionEnabled()) return false;
  alert->alertContentViewDidTapButtonAtIndex(*alert->alertContentView(),
                                             alert->cancelButtonIndex());
  return true;
}

// --- The keyboard ---

void QavAlertViewController::keyboardWillShow(const CGRect& endFrame, double duration) {
  const double covered = view()->frame().size.height - endFrame.origin.y;
  bottomSpacingConstraint_->setConstant(covered > 0 ? -covered : 0);
  animateAlertContainerForKeyboardChangeWithDuration(duration);
}

void QavAlertViewController::keyboardWillHide(double duration) {
  loadViewIfNeeded();
  bottomSpacingConstraint_->setConstant(0);
  animateAlertContainerForKeyboardChangeWithDuration(duration);
}

void QavAlertViewController::animateAlertContainerForKeyboardChangeWithDuration(double duration) {
  animateWithDuration({.duration = duration}, [this] { view()->layoutIfNeeded(); });
}

}  // namespace kindora
