// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewTint.h"

#include "toolkit/view/UIView.h"

namespace kindora {

void UIView::setTintAdjustmentMode(UIViewTintAdjustmentMode mode) {
  if (tintAdjustmentMode_ == mode) return;
  tintAdjustmentMode_ = mode;
  tintChanged();
}

bool UIView::isTintDimmed() const {
  if (tintAdjustmentMode_ != UIViewTintAdjustmentMode::automatic) {
    return tintAdjustmentMode_ == UIViewTintAdjustmentMode::dimmed;
  }
  const std::shared_ptr<UIView> parent = superview_.lock();
  return parent && parent->isTintDimmed();
}

void UIView::setTintColor(const UIColor& color) {
  if (ownTintColor_ == color) return;
  ownTintColor_ = color;
  tintChanged();
}

UIColor UIView::tintColor(const UIColor& otherwise) const {
  std::optional<UIColor> color = ownTintColor_;
  for (auto up = superview_.lock(); up && !color; up = up->superview_.lock()) {
    color = up->ownTintColor_;
  }
  return isTintDimmed() ? desaturated(color.value_or(otherwise)) : color.value_or(otherwise);
}

void UIView::tintChanged() {
  changed();
  const std::vector<std::shared_ptr<UIView>> views = subviews_;
  for (const auto& view : views) view->tintChanged();
}

}  // namespace kindora
