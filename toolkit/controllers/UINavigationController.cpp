// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UINavigationController.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/FatalError.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UIViewAnimation.h"

namespace kindora {
namespace {

constexpr double kDuration = 0.35;      // seconds, of a whole push or pop
constexpr double kGlideSeconds = 0.25;  // how long a page that is let go would glide at its speed
constexpr double kStays = 0.6;          // of the page; with less of it still in, it goes

}  // namespace

// A page on its way in or out. A pop keeps the page that leaves until it is out of sight.
struct UINavigationController::Transition {
  UIViewControllerRef leaving;   // hears that it disappears
  UIViewControllerRef arriving;  // hears that it appears
  bool pops = false;
  bool gesture = false;
  ProgressAnimation animation;
};

UINavigationController::UINavigationController(const UIViewControllerRef& root) {
  adopt(root);
  stack_.push_back(root);
  pages_.append(root);
}

UINavigationController::~UINavigationController() {
  for (const auto& controller : stack_) setParentOf(*controller, nullptr);
}

void UINavigationController::setBackgroundColor(const UIColor& color) {
  if (backgroundColor_ == color) return;
  backgroundColor_ = color;
  emit backgroundColorChanged();
}

UIViewControllerRef UINavigationController::visibleViewController() {
  const UIViewControllerRef presented = presentedViewController();
  return presented ? presented : topViewController();
}

QColor UINavigationController::background() const { return toQColor(backgroundColor_); }

void UINavigationController::adopt(const UIViewControllerRef& controller) {
  setParentOf(*controller, this);
  connect(controller->navigationItem(), &UINavigationItem::changed, this,
          &UINavigationController::canGoBackChanged);
}

void UINavigationController::pushViewController(const UIViewControllerRef& controller,
                                                bool animated) {
  if (transition_) finish();
  const UIViewControllerRef leaving = stack_.back();
  adopt(controller);
  stack_.push_back(controller);
  controller->loadViewIfNeeded();
  setTopProgress(0);
  pages_.append(controller);
  transition_ = std::make_shared<Transition>();
  change(leaving, animated);
}

void UINavigationController::popViewController(bool animated) {
  if (stack_.size() > 1) popToViewController(*stack_[stack_.size() - 2], animated);
}

void UINavigationController::popToRootViewController(bool animated) {
  popToViewController(*stack_.front(), animated);
}

void UINavigationController::popToViewController(const UIViewController& controller,
                                                 bool animated) {
  if (transition_) finish();
  const auto target = std::find_if(stack_.begin(), stack_.end(), [&](const auto& candidate) {
    return candidate.get() == &controller;
  });
  if (target == stack_.end()) fatalError("popping to a controller that is not in the stack");
  if (target + 1 == stack_.end()) return;
  const UIViewControllerRef leaving = stack_.back();
  const std::vector<UIViewControllerRef> between(target + 1, stack_.end() - 1);
  stack_.erase(target + 1, stack_.end());
  for (const auto& skipped : between) {
    pages_.remove(skipped);
    setParentOf(*skipped, nullptr);
    disconnect(skipped->navigationItem(), nullptr, this, nullptr);
  }
  transition_ = std::make_shared<Transition>();
  transition_->pops = true;
  change(leaving, animated);
}

void UINavigationController::change(const UIViewControllerRef& leaving, bool animated) {
  const auto mine = transition_;
  mine->leaving = leaving;
  mine->arriving = stack_.back();
  emit stackChanged();
  emit canGoBackChanged();
  emit transitionChanged();
  if (isComingOrVisible()) {
    leaving->beginAppearanceTransition(false, animated);
    if (transition_ == mine) mine->arriving->beginAppearanceTransition(true, animated);
    // One of them may have changed the stack, and so ended this change.
    if (transition_ != mine) return;
  }
  // Out of sight too, since the stack may come into sight while the change is under way.
  if (animated) {
    run(topProgress_, transition_->pops ? 0 : 1);
  } else {
    finish();
  }
}

void UINavigationController::run(double from, double to) {
  transition_->animation = ProgressAnimation(
      {.duration = kDuration * std::abs(to - from), .curve = UIViewAnimationCurve::easeOut},
      [this, from, to](double done) { setTopProgress(from + (to - from) * done); },
      [this] { finish(); });
}

void UINavigationController::cancelGesture() {
  transition_->gesture = false;
  std::swap(transition_->leaving, transition_->arriving);
  transition_->leaving->beginAppearanceTransition(false, true);
  transition_->arriving->beginAppearanceTransition(true, true);
}

void UINavigationController::finish() {
  if (transition_ && transition_->gesture) cancelGesture();
  const auto ended = std::exchange(transition_, nullptr);
  if (!ended) return;
  if (ended->pops) {
    pages_.remove(ended->leaving);
    setParentOf(*ended->leaving, nullptr);
    disconnect(ended->leaving->navigationItem(), nullptr, this, nullptr);
  }
  setTopProgress(1);
  ended->leaving->endAppearanceTransition();
  ended->arriving->endAppearanceTransition();
  emit transitionChanged();
  emit canGoBackChanged();
}

double UINavigationController::barProgress() const {
  return transition_ && transition_->pops ? 1 - topProgress_ : topProgress_;
}

bool UINavigationController::showsBackButton() const {
  return stack_.size() > 1 && !stack_.back()->navigationItem()->hidesBackButton();
}

bool UINavigationController::canGoBack() const { return showsBackButton() && !transition_; }

bool UINavigationController::goBack() {
  if (stack_.size() == 1 && !transition_) return stack_.front()->goBack();
  if (!canGoBack()) return UIViewController::goBack();
  popViewController(true);
  return true;
}

bool UINavigationController::beginBackGesture() {
  if (!canGoBack()) return false;
  transition_ = std::make_shared<Transition>();
  transition_->gesture = true;
  transition_->leaving = stack_.back();
  transition_->arriving = stack_[stack_.size() - 2];
  emit transitionChanged();
  emit canGoBackChanged();
  transition_->leaving->beginAppearanceTransition(false, true);
  transition_->arriving->beginAppearanceTransition(true, true);
  return true;
}

void UINavigationController::moveBackGesture(double topProgress) {
  if (transition_ && transition_->gesture) setTopProgress(std::clamp(topProgress, 0.0, 1.0));
}

void UINavigationController::endBackGesture(bool goesBack) {
  if (!transition_ || !transition_->gesture) return;
  if (goesBack && !stack_.back()->navigationItem()->hidesBackButton()) {
    transition_->gesture = false;
    transition_->pops = true;
    stack_.pop_back();
    emit stackChanged();
    emit canGoBackChanged();
    run(topProgress_, 0);
  } else {
    cancelGesture();
    run(topProgress_, 1);
  }
}

void UINavigationController::releaseBackGesture(double speed) {
  endBackGesture(topProgress_ - speed * kGlideSeconds < kStays);
}

void UINavigationController::viewWillDisappear(bool animated) {
  UIViewController::viewWillDisappear(animated);
  if (transition_ && transition_->gesture) finish();
}

void UINavigationController::setTopProgress(double progress) {
  if (topProgress_ == progress) return;
  topProgress_ = progress;
  emit topProgressChanged();
}

std::vector<UIViewController*> UINavigationController::visibleChildren() const {
  return {stack_.back().get()};
}

QUrl UINavigationController::page() const {
  return pageUrl(u"Kindora.Toolkit.Hosts", u"NavigationHost");
}

}  // namespace kindora
