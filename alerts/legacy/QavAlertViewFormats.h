// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The order of an alert's elements from top to bottom, in the visual format.
#pragma once

#include <string>

namespace kindora {

/// What an alert shows besides its texts.
struct QavAlertViewElements {
  bool textFields = false;
  bool customContent = false;
  bool buttons = false;
  bool buttonsSideBySide = false;  ///< the suggested table stands beside the other one
};

/// The texts in their scroll area; metrics topSpace and labelSpace.
[[nodiscard]] std::string qav_labelsFormat();
/// The whole alert; metrics textFieldBackgroundViewTopSpacing and bottomSpacing.
[[nodiscard]] std::string qav_alertFormat(const QavAlertViewElements& elements);
/// One field or two; metrics primaryTextFieldHeight and secondaryTextFieldHeight.
[[nodiscard]] std::string qav_textFieldsFormat(bool two);

}  // namespace kindora
