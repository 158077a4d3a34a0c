// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "alerts/legacy/QavAlertViewButtonRow.h"

namespace kindora {

/// Buttons below each other, without lines between them.
class QavAlertViewButtonTable final : public UIView {
 public:
  static constexpr double kRowHeight = 44;  ///< points

  using RowRef = std::shared_ptr<QavAlertViewButtonRow>;

  /// Called with the row that the user taps.
  std::function<void(int row)> rowTapped;

  [[nodiscard]] const std::vector<RowRef>& rows() const { return rows_; }
  /// Puts new rows in place of those that are there.
  void setTitles(const std::vector<std::string>& titles);
  [[nodiscard]] double heightOfRows() const {
    return kRowHeight * static_cast<double>(rows_.size());
  }

 protected:
  void layoutSubviews() override;

 private:
  std::vector<RowRef> rows_;
};

}  // namespace kindora
