// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewTint.h"

namespace kindora {

void UIViewTint::setTintAdjustmentMode(UIViewTintAdjustmentMode mode) {
  if (mode_ == mode) return;
  mode_ = mode;
  tintDidChange();
}

bool UIViewTint::isTintDimmed() const {
  if (mode_ != UIViewTintAdjustmentMode::automatic) {
    return mode_ == UIViewTintAdjustmentMode::dimmed;
  }
  const auto above = tintAbove();
  return above && above->isTintDimmed();
}

void UIViewTint::setTintColor(const UIColor& color) {
  if (ownColor_ == color) return;
  ownColor_ = color;
  tintDidChange();
}

UIColor UIViewTint::tintColor(const UIColor& otherwise) const {
  std::optional<UIColor> color = ownColor_;
  for (auto up = tintAbove(); up && !color; up = up->tintAbove()) color = up->ownColor_;
  return isTintDimmed() ? desaturated(color.value_or(otherwise)) : color.value_or(otherwise);
}

}  // namespace kindora
