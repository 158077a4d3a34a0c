// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UIView.h"

#include <algorithm>
#include <utility>

#include "platform/view/UIViewAnimationBlock.h"

namespace kindora {

UIViewState interpolated(const UIViewState& from, const UIViewState& to, double fraction) {
  // Not std::lerp: at 0 and 1 this is exact for the finite values that views hold.
  const auto mix = [fraction](double a, double b) { return a * (1 - fraction) + b * fraction; };
  return {.alpha = mix(from.alpha, to.alpha),
          .translation = {mix(from.translation.x, to.translation.x),
                          mix(from.translation.y, to.translation.y)},
          .scaling = mix(from.scaling, to.scaling),
          .cornerRadius = mix(from.cornerRadius, to.cornerRadius),
          .shadowOpacity = mix(from.shadowOpacity, to.shadowOpacity),
          .shadowOffset = {mix(from.shadowOffset.width, to.shadowOffset.width),
                           mix(from.shadowOffset.height, to.shadowOffset.height)},
          .layout = mix(from.layout, to.layout)};
}

UIView::~UIView() = default;

template <typename Change>
void UIView::animatable(Change change) {
  UIViewState next = state_;
  change(next);
  setState(next);
}

void UIView::setState(const UIViewState& state) {
  if (state_ == state && presentation_ == state) return;
  UIViewAnimationBlock* block = UIViewAnimationBlock::current();
  if (block != nullptr) block->willChange(shared_from_this());
  state_ = state;
  ++stateRevision_;
  if (block == nullptr) presentation_ = state;
  changed();
}

void UIView::setAlpha(double alpha) {
  animatable([alpha](UIViewState& state) { state.alpha = alpha; });
}

void UIView::setTranslation(CGPoint translation) {
  animatable([translation](UIViewState& state) { state.translation = translation; });
}

void UIView::setShadowOpacity(double opacity) {
  animatable([opacity](UIViewState& state) { state.shadowOpacity = opacity; });
}

void UIView::setShadowOffset(CGSize offset) {
  animatable([offset](UIViewState& state) { state.shadowOffset = offset; });
}

void UIView::setCornerRadius(double radius) {
  animatable([radius](UIViewState& state) { state.cornerRadius = radius; });
}

void UIView::setPresentation(const UIViewState& presentation) {
  if (presentation_ == presentation) return;
  presentation_ = presentation;
  changed();
}

void UIView::setShouldRasterize(bool on, double scale) {
  shouldRasterize_ = on;
  rasterizationScale_ = scale;
  changed();
}

void UIView::setShadowPathRadius(double radius) {
  shadowPathRadius_ = radius;
  changed();
}

void UIView::setUserInteractionEnabled(bool enabled) {
  if (userInteractionEnabled_ == enabled) return;
  userInteractionEnabled_ = enabled;
  changed();
}

bool UIView::endEditing(bool force) {
  bool ended = resignFirstResponder();
  for (const auto& view : subviews_) ended = view->endEditing(force) && ended;
  return ended || force;
}

// Tells nobody: it comes from whoever draws the view.
void UIView::setFrame(CGRect frame) { frame_ = frame; }

void UIView::addSubview(const std::shared_ptr<UIView>& view) {
  view->removeFromSuperview();
  view->superview_ = weak_from_this();
  view->removed_ = false;
  subviews_.push_back(view);
  view->changed();
}

void UIView::removeFromSuperview() {
  const std::shared_ptr<UIView> parent = superview_.lock();
  if (!parent) return;
  const std::shared_ptr<UIView> self = shared_from_this();
  superview_.reset();
  removed_ = true;
  std::erase(parent->subviews_, self);
  changed();
}

std::shared_ptr<UIView> UIView::viewWithName(std::string_view name) {
  if (name_ == name) return shared_from_this();
  for (const auto& view : subviews_) {
    if (auto found = view->viewWithName(name)) return found;
  }
  return nullptr;
}

void UIView::addConstraint(std::shared_ptr<NSLayoutConstraint> constraint) {
  constraints_.push_back(std::move(constraint));
  constraintsChanged();
}

void UIView::removeConstraint(const std::shared_ptr<NSLayoutConstraint>& constraint) {
  if (std::erase(constraints_, constraint) > 0) constraintsChanged();
}

void UIView::constraintsChanged() {
  if (laidOut_) layoutTarget_ = state_.layout + 1;
}

void UIView::layoutIfNeeded() {
  if (layoutRequested) layoutRequested();
  laidOut_ = true;
  if (layoutTarget_ > state_.layout) {
    animatable([this](UIViewState& state) { state.layout = layoutTarget_; });
  }
}

void UIView::changed() {
  // An observer may drop its own subscription or another's while it runs.
  const std::map<int, Observer> observers = observers_;
  for (const auto& [id, observer] : observers) {
    if (observers_.contains(id)) observer();
  }
}

UIView::Subscription UIView::observe(Observer observer) {
  const int id = nextObserver_++;
  observers_[id] = std::move(observer);
  return {weak_from_this(), id};
}

UIView::Subscription::Subscription(Subscription&& other) noexcept
    : view_(std::exchange(other.view_, {})), id_(other.id_) {}

UIView::Subscription& UIView::Subscription::operator=(Subscription&& other) noexcept {
  if (this != &other) {
    cancel();
    view_ = std::exchange(other.view_, {});
    id_ = other.id_;
  }
  return *this;
}

UIView::Subscription::~Subscription() { cancel(); }

void UIView::Subscription::cancel() {
  if (const auto view = view_.lock()) view->observers_.erase(id_);
  view_.reset();
}

}  // namespace kindora
