// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableViewCell.h"

namespace kindora {

void UITableViewCell::prepareForReuse() {
  UIReusableCell::prepareForReuse();
  settled_ = false;
  emit lookChanged();
}

void UITableViewCell::settle() {
  if (settled_) return;
  settled_ = true;
  emit lookChanged();
}

void UITableViewCell::setAccessoryType(UITableViewCellAccessoryType type) {
  if (accessoryType_ == type) return;
  accessoryType_ = type;
  emit lookChanged();
}

void UITableViewCell::setSelectionStyle(UITableViewCellSelectionStyle style) {
  if (selectionStyle_ == style) return;
  selectionStyle_ = style;
  emit lookChanged();
}

bool UITableViewCell::showsSelection() const {
  return isHighlighted() && selectionStyle_ != UITableViewCellSelectionStyle::none;
}

bool UITableViewCell::hasCheckmark() const {
  return accessoryType_ == UITableViewCellAccessoryType::checkmark;
}

}  // namespace kindora
