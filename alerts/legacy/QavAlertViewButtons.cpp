// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewButtons.h"

#include <algorithm>
#include <utility>

namespace kindora {

void QavAlertViewButtons::setCancelButtonTitle(std::optional<std::string> title) {
  cancelButtonTitle_ = std::move(title);
  if (cancelButtonTitle_ && cancelButtonIndex_ == kNoCancelButton) cancelButtonIndex_ = 0;
}

int QavAlertViewButtons::addButtonWithTitle(std::string title) {
  otherButtonTitles_.push_back(std::move(title));
  const auto first = std::ranges::find(otherButtonTitles_, otherButtonTitles_.back());
  return firstOtherButtonIndex() + static_cast<int>(first - otherButtonTitles_.begin());
}

int QavAlertViewButtons::numberOfButtons() const {
  return numberOfOthers() + (cancelButtonTitle_ ? 1 : 0);
}

std::optional<std::string> QavAlertViewButtons::buttonTitleAtIndex(int index) const {
  if (index < 0 || index >= numberOfButtons()) return std::nullopt;
  if (!cancelButtonTitle_) return otherButtonTitles_[static_cast<std::size_t>(index)];
  // A cancel button that was moved to an index between the others leaves index 0 to them.
  const bool moved = cancelButtonIndex_ > 0 && cancelButtonIndex_ <= numberOfOthers();
  const int cancelIndex = moved ? cancelButtonIndex_ : 0;
  if (index == cancelIndex) return cancelButtonTitle_;
  return otherButtonTitles_[static_cast<std::size_t>(index < cancelIndex ? index : index - 1)];
}

bool QavAlertViewButtons::areSideBySide() const {
  return numberOfButtons() == 2 && !alwaysShowsButtonsVertically;
}

int QavAlertViewButtons::suggestedButtonIndex() const {
  if (areSideBySide()) return firstOtherButtonIndex() + (cancelButtonTitle_ ? 0 : 1);
  if (cancelButtonTitle_) return cancelButtonIndex_;
  return firstOtherButtonIndex() + numberOfOthers() - 1;
}

int QavAlertViewButtons::numberOfOtherRows() const { return std::max(0, numberOfButtons() - 1); }

int QavAlertViewButtons::buttonIndexOfOtherRow(int row) const {
  if (areSideBySide()) return 0;
  const int index = row + firstOtherButtonIndex();
  return cancelButtonIndex_ != 0 && index - 1 < cancelButtonIndex_ ? index - 1 : index;
}

std::string QavAlertViewButtons::suggestedTitle() const {
  if (!areSideBySide() && cancelButtonTitle_) return *cancelButtonTitle_;
  return buttonTitleAtIndex(suggestedButtonIndex()).value_or("");
}

std::string QavAlertViewButtons::titleOfOtherRow(int row) const {
  if (areSideBySide()) return buttonTitleAtIndex(0).value_or("");
  return otherButtonTitles_.at(static_cast<std::size_t>(row));
}

}  // namespace kindora
