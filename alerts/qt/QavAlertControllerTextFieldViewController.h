// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "alerts/card/QavAlertTextFieldTableView.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// The part of an alert that holds its text fields: a table with a row for each, in order.
class QavAlertControllerTextFieldViewController final : public kindora::UIViewController {
  Q_OBJECT

 public:
  QavAlertControllerTextFieldViewController(
      std::vector<std::shared_ptr<UITextField>> textFields,
      std::shared_ptr<QavAlertControllerVisualStyle> visualStyle);

  [[nodiscard]] const std::vector<std::shared_ptr<UITextField>>& textFields() const {
    return textFields_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertControllerVisualStyle>& visualStyle() const {
    return visualStyle_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertTextFieldTableView>& tableView();

  [[nodiscard]] UIViewRef loadView() override;

 private:
  std::vector<std::shared_ptr<UITextField>> textFields_;
  std::shared_ptr<QavAlertControllerVisualStyle> visualStyle_;
  std::shared_ptr<QavAlertTextFieldTableView> tableView_;
};

}  // namespace kindora
