// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UITableViewCell.h"

#include <QQmlEngine>

namespace kindora {

UITableViewCell::UITableViewCell() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

std::shared_ptr<UIView> UITableViewCell::outlet(std::string_view name) {
  return contentView_->viewWithName(name);
}

UITableViewHeaderFooterView::UITableViewHeaderFooterView() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  connectOutlet(textLabel, "textLabel", *contentView_);
}

std::shared_ptr<UIView> UITableViewHeaderFooterView::outlet(std::string_view name) {
  return contentView_->viewWithName(name);
}

}  // namespace kindora
