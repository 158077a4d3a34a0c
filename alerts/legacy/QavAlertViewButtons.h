// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kindora {

/// Titles of an alert's buttons, and which index a button has. All indexes are signed and may lie
/// outside the buttons that there are.
///
/// Buttons stand in two tables: one with the suggested button alone, the other with the rest.
class QavAlertViewButtons final {
 public:
  static constexpr int kNoCancelButton = -1;

  bool alwaysShowsButtonsVertically = false;

  [[nodiscard]] const std::optional<std::string>& cancelButtonTitle() const {
    return cancelButtonTitle_;
  }
  /// The first title gives the cancel button index 0 unless an index was set before.
  void setCancelButtonTitle(std::optional<std::string> title);
  [[nodiscard]] const std::vector<std::string>& otherButtonTitles() const {
    return otherButtonTitles_;
  }
  /// Answers the index of the first button of that title, which for a repeated title is not the one
  /// just added.
  int addButtonWithTitle(std::string title);

  [[nodiscard]] int cancelButtonIndex() const { return cancelButtonIndex_; }
  void setCancelButtonIndex(int index) { cancelButtonIndex_ = index; }
  [[nodiscard]] int firstOtherButtonIndex() const { return cancelButtonTitle_ ? 1 : 0; }
  [[nodiscard]] int numberOfButtons() const;
  /// None for an index that no button has.
  [[nodiscard]] std::optional<std::string> buttonTitleAtIndex(int index) const;

  /// Whether two buttons stand beside each other, the suggested one to the right.
  [[nodiscard]] bool areSideBySide() const;
  /// Below 0 without buttons.
  [[nodiscard]] int suggestedButtonIndex() const;
  /// Rows of the table without the suggested button.
  [[nodiscard]] int numberOfOtherRows() const;
  [[nodiscard]] int buttonIndexOfOtherRow(int row) const;

  /// What the buttons show.
  [[nodiscard]] std::string suggestedTitle() const;
  [[nodiscard]] std::string titleOfOtherRow(int row) const;

 private:
  [[nodiscard]] int numberOfOthers() const { return static_cast<int>(otherButtonTitles_.size()); }

  std::optional<std::string> cancelButtonTitle_;
  std::vector<std::string> otherButtonTitles_;
  int cancelButtonIndex_ = kNoCancelButton;
};

}  // namespace kindora
