// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertControllerTextFieldViewController.h"

#include <utility>

namespace kindora {

QavAlertControllerTextFieldViewController::QavAlertControllerTextFieldViewController(
    std::vector<std::shared_ptr<UITextField>> textFields,
    std::shared_ptr<QavAlertControllerVisualStyle> visualStyle)
    : textFields_(std::move(textFields)), visualStyle_(std::move(visualStyle)) {}

const std::shared_ptr<QavAlertTextFieldTableView>&
QavAlertControllerTextFieldViewController::tableView() {
  loadViewIfNeeded();
  return tableView_;
}

UIViewRef QavAlertControllerTextFieldViewController::loadView() {
  tableView_ = QavAlertTextFieldTableView::withTextFields(textFields_, visualStyle_);
  return tableView_;
}

}  // namespace kindora
