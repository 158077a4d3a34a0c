// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The part of a view that has to do with its layout.
#include <algorithm>
#include <utility>

#include "toolkit/view/LayoutPasses.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

// --- Constraints ---

void UIView::addConstraint(NSLayoutConstraintRef constraint) {
  if (const auto owner = constraint->owner()) owner->removeConstraint(constraint);
  constraint->owner_ = weak_from_this();
  constraints_.push_back(std::move(constraint));
  structureChanged();
  setNeedsUpdateConstraints();
}

void UIView::removeConstraint(const NSLayoutConstraintRef& constraint) {
  if (std::erase(constraints_, constraint) == 0) return;
  constraint->owner_.reset();
  structureChanged();
  setNeedsUpdateConstraints();
}

void UIView::removeConstraintsOn(const UIView& leaving) {
  const auto speaksOfIt = [&leaving](const NSLayoutConstraintRef& constraint) {
    const auto first = constraint->firstItem();
    const auto second = constraint->secondItem();
    return (first && leaving.contains(*first)) || (second && leaving.contains(*second));
  };
  for (UIView* up = this; up != nullptr; up = up->superview().get()) {
    std::erase_if(up->constraints_, [&](const NSLayoutConstraintRef& constraint) {
      if (!speaksOfIt(constraint)) return false;
      constraint->owner_.reset();
      return true;
    });
  }
}

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
  if (constraintBased_ == !translates) return;
  constraintBased_ = !translates;
  structureChanged();
}

void UIView::setNeedsUpdateConstraints() {
  if (laidOut_) layoutTarget_ = state().layout + 1;
  topmostView().passes().constantsChanged();
  scheduleLayout();
}

// --- Passes ---

LayoutPasses& UIView::passes() {
  if (!passes_) passes_ = std::make_unique<LayoutPasses>(*this);
  return *passes_;
}

void UIView::structureChanged() {
  topmostView().passes().structureChanged();
  scheduleLayout();
}

void UIView::invalidateIntrinsicContentSize() {
  ++contentRevision_;
  scheduleLayout();
}

void UIView::setNeedsLayout() {
  needsLayout_ = true;
  scheduleLayout();
}

void UIView::scheduleLayout() {
  UIView& top = topmostView();
  if (top.passes().schedule() && top.renderer_ != nullptr) top.renderer_->layoutScheduled();
}

void UIView::layoutIfNeeded() {
  laidOut_ = true;
  if (layoutTarget_ > state().layout) {
    UIViewState next = state();
    next.layout = layoutTarget_;
    setState(next);
  }
  UIView& top = topmostView();
  top.passes().run([&top] { top.layOutMarkedViews(); });
}

void UIView::layOutMarkedViews() {
  if (std::exchange(needsLayout_, false)) {
    layoutSubviews();
    layouts_.notify();
  }
  const auto inside = subviews_;  // the views may change it while they lay themselves out
  for (const auto& view : inside) view->layOutMarkedViews();
}

}  // namespace kindora
