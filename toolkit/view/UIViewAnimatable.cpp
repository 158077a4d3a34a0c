// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAnimatable.h"

#include <utility>

#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UIViewAnimationBlock.h"

namespace kindora {

UIViewAnimatable::UIViewAnimatable() = default;
UIViewAnimatable::~UIViewAnimatable() = default;

// --- State ---

template <typename Change>
void UIViewAnimatable::change(Change change) {
  UIViewState next = state_;
  change(next);
  setState(next);
}

void UIViewAnimatable::setState(const UIViewState& state) {
  if (state_ == state && presentation_ == state) return;
  const std::shared_ptr<UIViewAnimatable> self = animated();  // an observer may let go of it
  UIViewAnimationBlock* block = self ? UIViewAnimationBlock::current() : nullptr;
  if (block != nullptr) block->willChange(self);
  const bool moved = state_.frame != state.frame;
  const bool resized = state_.frame.size != state.frame.size;
  state_ = state;
  ++stateRevision_;
  if (block == nullptr) presentation_ = state;
  updateShown();
  changed();
  if (moved) frameDidChange(resized);
}

void UIViewAnimatable::setAlpha(double alpha) {
  change([alpha](UIViewState& state) { state.alpha = alpha; });
}

void UIViewAnimatable::setBackgroundColor(const UIColor& color) {
  change([&color](UIViewState& state) { state.backgroundColor = color; });
}

void UIViewAnimatable::setTranslation(CGPoint translation) {
  change([translation](UIViewState& state) { state.translation = translation; });
}

void UIViewAnimatable::setScaling(double factor) {
  change([factor](UIViewState& state) { state.scaling = factor; });
}

void UIViewAnimatable::setShadowOpacity(double opacity) {
  change([opacity](UIViewState& state) { state.shadowOpacity = opacity; });
}

void UIViewAnimatable::setShadowOffset(CGSize offset) {
  change([offset](UIViewState& state) { state.shadowOffset = offset; });
}

void UIViewAnimatable::setCornerRadius(double radius) {
  change([radius](UIViewState& state) { state.cornerRadius = radius; });
}

void UIViewAnimatable::setCurl(double curl) {
  change([curl](UIViewState& state) { state.curl = curl; });
}

void UIViewAnimatable::setFrame(CGRect frame) {
  change([frame](UIViewState& state) { state.frame = frame; });
}

void UIViewAnimatable::setCenter(CGPoint center) {
  change([center](UIViewState& state) { state.frame = rectAround(center, state.frame.size); });
}

void UIViewAnimatable::setSize(CGSize size) {
  change([size](UIViewState& state) { state.frame = rectAround(centerOf(state.frame), size); });
}

void UIViewAnimatable::adoptFrame(CGRect frame) {
  state_.frame = frame;
  presentation_.frame = frame;
  updateShown();
}

// --- What is shown ---

void UIViewAnimatable::updateShown() {
  shown_ = presentation_;
  if (keyframes_.opacity) shown_.alpha = *keyframes_.opacity;
  if (keyframes_.transform) {  // drawn in place of what the state says
    shown_.translation = {};
    shown_.scaling = 1;
  }
  if (keyframes_.position) shown_.frame = rectAround(*keyframes_.position, shown_.frame.size);
  const CGPoint offset = offsetAtTilt(motionEffects_, tilt_);
  shown_.frame.origin.x += offset.x;
  shown_.frame.origin.y += offset.y;
}

void UIViewAnimatable::setPresentation(const UIViewState& presentation) {
  if (presentation_ == presentation) return;
  presentation_ = presentation;
  updateShown();
  changed();
}

void UIViewAnimatable::setKeyframeValues(const UIViewKeyframeValues& values) {
  if (keyframes_ == values) return;
  keyframes_ = values;
  updateShown();
  changed();
}

void UIViewAnimatable::setLayerAnimation(std::string_view key,
                                         std::shared_ptr<UIViewLayerAnimation> animation) {
  // The earlier one goes last, since its end may be heard by somebody who asks about this view.
  const auto found = layerAnimations_.find(key);
  std::shared_ptr<UIViewLayerAnimation> earlier;
  if (found != layerAnimations_.end()) {
    earlier = std::move(found->second);
    layerAnimations_.erase(found);
  }
  if (animation) layerAnimations_.emplace(key, std::move(animation));
}

std::shared_ptr<UIViewLayerAnimation> UIViewAnimatable::layerAnimation(std::string_view key) const {
  const auto found = layerAnimations_.find(key);
  return found != layerAnimations_.end() ? found->second : nullptr;
}

void UIViewAnimatable::addMotionEffect(const UIMotionEffectGroup& group) {
  motionEffects_.push_back(group);
  updateShown();
  changed();
}

void UIViewAnimatable::setTilt(double horizontal, double vertical) {
  tilt_ = {horizontal, vertical};
  if (motionEffects_.empty()) return;
  updateShown();
  changed();
}

}  // namespace kindora
