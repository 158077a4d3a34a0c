// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIView.h"

#include <algorithm>
#include <utility>

#include "toolkit/view/LayoutEngine.h"
#include "toolkit/view/UIViewAnimationBlock.h"

namespace kindora {

UIViewState interpolated(const UIViewState& from, const UIViewState& to, double fraction) {
  // Not std::lerp: at 0 and 1 this is exact for the finite values that views hold.
  const auto mix = [fraction](double a, double b) { return a * (1 - fraction) + b * fraction; };
  const auto point = [&mix](CGPoint a, CGPoint b) { return CGPoint{mix(a.x, b.x), mix(a.y, b.y)}; };
  const auto size = [&mix](CGSize a, CGSize b) {
    return CGSize{mix(a.width, b.width), mix(a.height, b.height)};
  };
  const UIColor& before = from.backgroundColor;
  const UIColor& after = to.backgroundColor;
  return {
      .frame = {point(from.frame.origin, to.frame.origin), size(from.frame.size, to.frame.size)},
      .alpha = mix(from.alpha, to.alpha),
      .backgroundColor = {mix(before.red, after.red), mix(before.green, after.green),
                          mix(before.blue, after.blue), mix(before.alpha, after.alpha)},
      .translation = point(from.translation, to.translation),
      .scaling = mix(from.scaling, to.scaling),
      .cornerRadius = mix(from.cornerRadius, to.cornerRadius),
      .shadowOpacity = mix(from.shadowOpacity, to.shadowOpacity),
      .shadowOffset = size(from.shadowOffset, to.shadowOffset),
      .curl = mix(from.curl, to.curl),
      .layout = mix(from.layout, to.layout)};
}

UIView::UIView() = default;
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
  const bool moved = state_.frame != state.frame;
  const bool resized = state_.frame.size != state.frame.size;
  state_ = state;
  ++stateRevision_;
  if (block == nullptr) presentation_ = state;
  updateShown();
  changed();
  if (resized) {
    resizeSubviews();
    setNeedsLayout();
  }
  if (const auto parent = moved ? superview() : nullptr) parent->setNeedsLayout();
}

void UIView::resizeSubviews() {
  for (const auto& view : subviews_) {
    if (view->fillsSuperview_) view->setFrame(bounds());
  }
}

void UIView::updateShown() {
  shown_ = presentation_;
  if (keyframes_.opacity) shown_.alpha = *keyframes_.opacity;
  if (keyframes_.transform) {  // drawn in place of what the state says
    shown_.translation = {};
    shown_.scaling = 1;
  }
  if (keyframes_.position) shown_.frame = rectAround(*keyframes_.position, shown_.frame.size);
  const CGPoint offset = motionOffset();
  shown_.frame.origin.x += offset.x;
  shown_.frame.origin.y += offset.y;
}

void UIView::setKeyframeValues(const UIViewKeyframeValues& values) {
  if (keyframes_ == values) return;
  keyframes_ = values;
  updateShown();
  changed();
}

void UIView::setFrame(CGRect frame) {
  animatable([frame](UIViewState& state) { state.frame = frame; });
}

void UIView::setCenter(CGPoint center) {
  animatable([center](UIViewState& state) { state.frame = rectAround(center, state.frame.size); });
}

void UIView::setSize(CGSize size) {
  animatable([size](UIViewState& state) { state.frame = rectAround(centerOf(state.frame), size); });
}

void UIView::reportFrame(CGRect frame) {
  state_.frame = frame;
  presentation_.frame = frame;
  updateShown();
  resizeSubviews();
}

CGPoint UIView::originInWindow() const {
  const std::optional<CGPoint> drawn = locateInWindow ? locateInWindow() : std::nullopt;
  if (drawn) return *drawn;
  const std::shared_ptr<UIView> parent = superview();
  const CGPoint base = parent ? parent->originInWindow() : CGPoint{};
  return {base.x + state_.frame.origin.x, base.y + state_.frame.origin.y};
}

CGPoint UIView::convertPoint(CGPoint point, const UIView& from) const {
  const CGPoint there = from.originInWindow();
  const CGPoint here = originInWindow();
  return {point.x + there.x - here.x, point.y + there.y - here.y};
}

void UIView::setAlpha(double alpha) {
  animatable([alpha](UIViewState& state) { state.alpha = alpha; });
}

void UIView::setBackgroundColor(const UIColor& color) {
  animatable([&color](UIViewState& state) { state.backgroundColor = color; });
}

void UIView::setScaling(double factor) {
  animatable([factor](UIViewState& state) { state.scaling = factor; });
}

void UIView::setCurl(double curl) {
  animatable([curl](UIViewState& state) { state.curl = curl; });
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
  updateShown();
  changed();
}

void UIView::setClipsToBounds(bool clips) {
  if (clipsToBounds_ == clips) return;
  clipsToBounds_ = clips;
  changed();
}

void UIView::setBorder(const UIViewBorder& border) {
  if (border_ == border) return;
  border_ = border;
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

void UIView::setHidden(bool hidden) {
  if (hidden_ == hidden) return;
  hidden_ = hidden;
  changed();
}

void UIView::setLayerAnimation(std::string_view key,
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

std::shared_ptr<UIViewLayerAnimation> UIView::layerAnimation(std::string_view key) const {
  const auto found = layerAnimations_.find(key);
  return found != layerAnimations_.end() ? found->second : nullptr;
}

void UIView::setUserInteractionEnabled(bool enabled) {
  if (userInteractionEnabled_ == enabled) return;
  userInteractionEnabled_ = enabled;
  changed();
}

void UIView::setTapGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer) {
  tapGestureRecognizer_ = std::move(recognizer);
  changed();
}

void UIView::setAccessibility(UIAccessibilityRole role, const std::optional<std::string>& label) {
  if (accessibilityRole_ == role && accessibilityLabel_ == label) return;
  accessibilityRole_ = role;
  accessibilityLabel_ = label;
  changed();
}

void UIView::addMotionEffect(const UIMotionEffectGroup& group) {
  motionEffects_.push_back(group);
  updateShown();
  changed();
}

void UIView::setTilt(double horizontal, double vertical) {
  tilt_ = {horizontal, vertical};
  if (motionEffects_.empty()) return;
  updateShown();
  changed();
}

CGPoint UIView::motionOffset() const {
  CGPoint offset;
  for (const UIMotionEffectGroup& group : motionEffects_) {
    for (const UIInterpolatingMotionEffect& effect : group.motionEffects) {
      const bool isHorizontal =
          effect.type == UIInterpolatingMotionEffectType::tiltAlongHorizontalAxis;
      const double fraction = ((isHorizontal ? tilt_.x : tilt_.y) + 1) / 2;
      const double points =
          effect.minimumRelativeValue * (1 - fraction) + effect.maximumRelativeValue * fraction;
      if (effect.keyPath == "center.x") offset.x += points;
      if (effect.keyPath == "center.y") offset.y += points;
    }
  }
  return offset;
}

bool UIView::endEditing(bool force) {
  bool ended = resignFirstResponder();
  for (const auto& view : subviews_) ended = view->endEditing(force) && ended;
  return ended || force;
}

void UIView::addSubview(const std::shared_ptr<UIView>& view) { insertSubviewAbove(view, nullptr); }

void UIView::insertSubviewAbove(const std::shared_ptr<UIView>& view, const UIView* sibling) {
  // Within one superview only the order changes: constraints stay.
  if (view->superview().get() == this) {
    std::erase(subviews_, view);
  } else {
    view->removeFromSuperview();
  }
  view->superview_ = weak_from_this();
  view->removed_ = false;
  const auto below = sibling == nullptr
                         ? subviews_.end()
                         : std::ranges::find(subviews_, sibling, &std::shared_ptr<UIView>::get);
  subviews_.insert(below == subviews_.end() ? below : below + 1, view);
  setNeedsLayout();
  structureChanged();
  view->changed();
  changed();
}

void UIView::removeFromSuperview() {
  const std::shared_ptr<UIView> parent = superview_.lock();
  if (!parent) return;
  const std::shared_ptr<UIView> self = shared_from_this();
  parent->removeConstraintsOn(*this);
  superview_.reset();
  removed_ = true;
  layoutIsScheduled_ = false;  // what was true when it last was a topmost view
  std::erase(parent->subviews_, self);
  parent->setNeedsLayout();
  parent->structureChanged();
  structureChanged();
  changed();
  parent->changed();
}

std::shared_ptr<UIView> UIView::viewWithName(std::string_view name) {
  if (name_ == name) return shared_from_this();
  for (const auto& view : subviews_) {
    if (auto found = view->viewWithName(name)) return found;
  }
  return nullptr;
}

bool hasCoveringSubview(const UIView& view) {
  return std::ranges::any_of(view.subviews(), [&](const auto& subview) {
    return subview->isMadeInCode() && subview->isUserInteractionEnabled() &&
           subview->fillsSuperview();
  });
}

}  // namespace kindora
