// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIView.h"

#include <algorithm>
#include <optional>

#include "toolkit/view/LayoutPasses.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

UIView::UIView() = default;
UIView::~UIView() = default;

// --- Tree ---

void UIView::addSubview(const UIViewRef& view) { insertSubviewAbove(view, nullptr); }

void UIView::insertSubviewAbove(const UIViewRef& view, const UIView* sibling) {
  // Within one superview only the order changes: constraints stay.
  if (view->superview().get() == this) {
    std::erase(subviews_, view);
  } else {
    view->removeFromSuperview();
  }
  view->superview_ = weak_from_this();
  view->removed_ = false;
  const auto below =
      sibling == nullptr ? subviews_.end() : std::ranges::find(subviews_, sibling, &UIViewRef::get);
  subviews_.insert(below == subviews_.end() ? below : below + 1, view);
  setNeedsLayout();
  structureChanged();
  view->changed();
  changed();
}

void UIView::removeFromSuperview() {
  const UIViewRef parent = superview_.lock();
  if (!parent) return;
  const UIViewRef self = shared_from_this();
  parent->removeConstraintsOn(*this);
  superview_.reset();
  removed_ = true;
  passes().unschedule();
  std::erase(parent->subviews_, self);
  parent->setNeedsLayout();
  parent->structureChanged();
  structureChanged();
  changed();
  parent->changed();
}

UIViewRef UIView::viewWithName(std::string_view name) {
  if (name_ == name) return shared_from_this();
  for (const auto& view : subviews_) {
    if (auto found = view->viewWithName(name)) return found;
  }
  return nullptr;
}

bool UIView::contains(const UIView& other) const {
  if (&other == this) return true;
  const UIViewRef up = other.superview();
  return up && contains(*up);
}

UIView& UIView::topmostView() {
  UIView* top = this;
  while (const auto up = top->superview()) top = up.get();
  return *top;
}

bool UIView::endEditing(bool force) {
  bool ended = resignFirstResponder();
  const std::vector<UIViewRef> views = subviews_;
  for (const auto& view : views) ended = view->endEditing(force) && ended;
  return ended || force;
}

void UIView::tintDidChange() {
  const UIViewRef self = weak_from_this().lock();  // an observer may let go of it
  changed();
  const std::vector<UIViewRef> views = subviews_;
  for (const auto& view : views) view->tintDidChange();
}

bool hasCoveringSubview(const UIView& view) {
  return std::ranges::any_of(view.subviews(), [&](const auto& subview) {
    return subview->placer() == UIViewPlacer::record && subview->isUserInteractionEnabled() &&
           subview->fillsSuperview();
  });
}

// --- Place ---

void UIView::frameDidChange(bool resized) {
  if (resized) {
    resizeSubviews();
    setNeedsLayout();
  }
  if (const auto parent = superview()) parent->setNeedsLayout();
}

void UIView::resizeSubviews() {
  const std::vector<UIViewRef> views = subviews_;
  for (const auto& view : views) {
    if (view->fillsSuperview_) view->setFrame(bounds());
  }
}

void UIView::reportFrame(CGRect frame) {
  const bool moved = frame != this->frame();
  adoptFrame(frame);
  resizeSubviews();
  if (moved) layouts_.notify();
}

void UIView::removeRenderer(const UIViewRenderer& renderer) {
  if (renderer_ == &renderer) renderer_ = nullptr;
}

CGPoint UIView::originInWindow() const {
  const std::optional<CGPoint> drawn =
      renderer_ != nullptr ? renderer_->originInWindow() : std::nullopt;
  if (drawn) return *drawn;
  const UIViewRef parent = superview();
  const CGPoint base = parent ? parent->originInWindow() : CGPoint{};
  return {base.x + frame().origin.x, base.y + frame().origin.y};
}

CGPoint UIView::convertPoint(CGPoint point, const UIView& from) const {
  const CGPoint there = from.originInWindow();
  const CGPoint here = originInWindow();
  return {point.x + there.x - here.x, point.y + there.y - here.y};
}

}  // namespace kindora
