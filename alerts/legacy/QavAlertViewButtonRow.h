// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "toolkit/view/UILabel.h"

namespace kindora {

/// One button of an alert: a row with a title that can be tapped while it is enabled.
class QavAlertViewButtonRow final : public UIView {
 public:
  [[nodiscard]] static std::shared_ptr<QavAlertViewButtonRow> withTitle(const std::string& title);

  /// Called when the user taps the row.
  std::function<void()> tapped;

  [[nodiscard]] const std::shared_ptr<UILabel>& textLabel() const { return textLabel_; }
  [[nodiscard]] bool isEnabled() const { return isUserInteractionEnabled(); }
  void setEnabled(bool enabled);
  /// Shown darker.
  [[nodiscard]] bool isSelected() const { return selected_; }
  void setSelected(bool selected);

 private:
  QavAlertViewButtonRow() = default;
  void showHighlight(bool highlighted);

  std::shared_ptr<UILabel> textLabel_ = std::make_shared<UILabel>();
  bool selected_ = false;
};

}  // namespace kindora
