// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "alerts/card/QavAlertLabel.h"
#include "alerts/card/QavAlertTextFieldTableView.h"
#include "toolkit/view/UIScrollView.h"

namespace kindora {

/// The upper part of an alert: title, message and text fields, which scroll when they are given
/// less height than they take.
class QavAlertControllerScrollView final : public UIScrollView {
 public:
  [[nodiscard]] static std::shared_ptr<QavAlertControllerScrollView> withVisualStyle(
      std::shared_ptr<const QavAlertControllerVisualStyle> style);

  [[nodiscard]] const std::shared_ptr<QavAlertLabel>& titleLabel() const { return titleLabel_; }
  [[nodiscard]] const std::shared_ptr<QavAlertLabel>& messageLabel() const { return messageLabel_; }
  /// Null while there are no text fields.
  [[nodiscard]] const std::shared_ptr<QavAlertTextFieldTableView>& textFieldView() const {
    return textFieldView_;
  }
  void setTextFieldView(std::shared_ptr<QavAlertTextFieldTableView> view);
  [[nodiscard]] const std::shared_ptr<const QavAlertControllerVisualStyle>& visualStyle() const {
    return visualStyle_;
  }
  void setVisualStyle(std::shared_ptr<const QavAlertControllerVisualStyle> style);

  /// No width, and the height of all the content.
  [[nodiscard]] CGSize intrinsicContentSize() const override;

 protected:
  void layoutSubviews() override;

 private:
  QavAlertControllerScrollView() = default;
  void constrainContent();
  void constrainTextFields();
  void hold(NSLayoutConstraint::Parts parts);
  void alignSidesWithTitle(const UIViewRef& view);
  [[nodiscard]] double textFieldsHeight() const;

  std::shared_ptr<QavAlertLabel> titleLabel_ = std::make_shared<QavAlertLabel>();
  std::shared_ptr<QavAlertLabel> messageLabel_ = std::make_shared<QavAlertLabel>();
  std::shared_ptr<QavAlertTextFieldTableView> textFieldView_;
  std::shared_ptr<const QavAlertControllerVisualStyle> visualStyle_;
  NSLayoutConstraints contentConstraints_;
  NSLayoutConstraintRef textFieldsHeightConstraint_;
};

}  // namespace kindora
