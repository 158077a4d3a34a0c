// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The part of a view that has to do with its layout.
#include <algorithm>
#include <utility>

#include "toolkit/view/LayoutEngine.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

// Views that agree need two or three rounds. What has not settled by then never will.
constexpr int kMostRounds = 50;

}  // namespace

bool UIView::contains(const UIView& other) const {
  if (&other == this) return true;
  const std::shared_ptr<UIView> up = other.superview();
  return up && contains(*up);
}

UIView& UIView::topmostView() {
  UIView* top = this;
  while (const auto up = top->superview()) top = up.get();
  return *top;
}

// --- Constraints ---

void UIView::addConstraint(NSLayoutConstraintRef constraint) {
  if (const auto owner = constraint->owner()) owner->removeConstraint(constraint);
  constraint->owner_ = weak_from_this();
  constraints_.push_back(std::move(constraint));
  structureChanged();
  constraintDidChange();
}

void UIView::removeConstraint(const NSLayoutConstraintRef& constraint) {
  if (std::erase(constraints_, constraint) == 0) return;
  constraint->owner_.reset();
  structureChanged();
  constraintDidChange();
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

void UIView::constraintDidChange() {
  if (laidOut_) layoutTarget_ = state_.layout + 1;
  topmostView().constantsChanged_ = true;
  scheduleLayout();
}

// --- Passes ---

void UIView::structureChanged() {
  topmostView().structureChanged_ = true;
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
  if (std::exchange(top.layoutIsScheduled_, true) || top.isLayingOut_) return;
  if (top.layoutScheduled) top.layoutScheduled();
}

void UIView::layoutIfNeeded() {
  if (layoutRequested) layoutRequested();
  laidOut_ = true;
  if (layoutTarget_ > state_.layout) {
    UIViewState next = state_;
    next.layout = layoutTarget_;
    setState(next);
  }
  topmostView().runLayoutPasses();
}

void UIView::runLayoutPasses() {
  if (isLayingOut_) return;
  const std::shared_ptr<UIView> alive = weak_from_this().lock();
  isLayingOut_ = true;
  if (!engine_) engine_ = std::make_unique<LayoutEngine>(*this);
  for (int round = 0; round < kMostRounds; ++round) {
    layoutIsScheduled_ = false;
    engine_->takeOver({.structure = std::exchange(structureChanged_, false),
                       .constants = std::exchange(constantsChanged_, false)});
    engine_->placeViews();
    layOutMarkedViews();
    if (!layoutIsScheduled_) break;
  }
  layoutIsScheduled_ = false;
  isLayingOut_ = false;
}

void UIView::layOutMarkedViews() {
  if (std::exchange(needsLayout_, false)) {
    layoutSubviews();
    if (layoutFinished) layoutFinished();
  }
  const auto inside = subviews_;  // the views may change it while they lay themselves out
  for (const auto& view : inside) view->layOutMarkedViews();
}

}  // namespace kindora
