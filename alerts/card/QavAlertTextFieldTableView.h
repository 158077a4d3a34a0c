// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "alerts/card/QavAlertTextFieldTableViewCell.h"

namespace kindora {

/// An alert's text fields one below another, a row each. Rows are not pressed themselves.
class QavAlertTextFieldTableView final : public UIView {
 public:
  using TextFields = std::vector<std::shared_ptr<UITextField>>;

  [[nodiscard]] static std::shared_ptr<QavAlertTextFieldTableView> withTextFields(
      TextFields fields, const std::shared_ptr<const QavAlertControllerVisualStyle>& style);

  [[nodiscard]] const TextFields& textFields() const { return textFields_; }
  /// In the order of the fields.
  [[nodiscard]] const std::vector<std::shared_ptr<QavAlertTextFieldTableViewCell>>& cells() const {
    return cells_;
  }
  /// Of all rows, in points.
  [[nodiscard]] double requiredHeight() const;

 protected:
  void layoutSubviews() override;

 private:
  explicit QavAlertTextFieldTableView(TextFields fields);

  TextFields textFields_;
  std::vector<std::shared_ptr<QavAlertTextFieldTableViewCell>> cells_;
  double placedHeight_ = 0;
};

}  // namespace kindora
