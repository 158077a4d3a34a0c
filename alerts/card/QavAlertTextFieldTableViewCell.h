// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "toolkit/view/UITextField.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A row with one text field in a frame.
class QavAlertTextFieldTableViewCell final : public UIView {
 public:
  [[nodiscard]] static std::shared_ptr<QavAlertTextFieldTableViewCell> withTextField(
      std::shared_ptr<UITextField> field,
      std::shared_ptr<const QavAlertControllerVisualStyle> style);

  [[nodiscard]] const std::shared_ptr<UITextField>& textField() const { return textField_; }
  /// What the field takes with its frame, and at least the style's estimated height; points.
  [[nodiscard]] double requiredHeight() const;

 protected:
  void layoutSubviews() override;

 private:
  QavAlertTextFieldTableViewCell(std::shared_ptr<UITextField> field,
                                 std::shared_ptr<const QavAlertControllerVisualStyle> style);
  void build();

  std::shared_ptr<UITextField> textField_;
  std::shared_ptr<const QavAlertControllerVisualStyle> style_;
};

}  // namespace kindora
