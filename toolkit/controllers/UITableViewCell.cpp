// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableViewCell.h"

#include <QQmlEngine>

namespace kindora {

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

UITableViewHeaderFooterView::UITableViewHeaderFooterView() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  connectOutlet(textLabel, "textLabel", *contentView_);
}

UIViewRef UITableViewHeaderFooterView::outlet(std::string_view name) {
  return contentView_->viewWithName(name);
}

}  // namespace kindora
