// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewFormats.h"

namespace kindora {

std::string qav_labelsFormat() {
  std::string format = "V:|-(==topSpace)";
  format += "-[titleLabel]";
  format += "-(==labelSpace)";
  format += "-[messageLabel]";
  return format;
}

std::string qav_alertFormat(const QavAlertViewElements& elements) {
  std::string format = "V:|";
  format += "[scrollView]";
  if (elements.textFields) {
    format += "-(==textFieldBackgroundViewTopSpacing)-[textFieldBackgroundView]";
  }
  if (elements.customContent) format += "-[customContentView]";
  if (elements.buttons) {
    format += "-(==bottomSpacing)-[buttonTopSeparatorView]";
    format += "[otherButtonsTableView]";
    if (!elements.buttonsSideBySide) format += "[suggestedButtonTableView]";
  }
  format += "|";
  return format;
}

std::string qav_textFieldsFormat(bool two) {
  std::string format = "V:|[primaryTextField(==primaryTextFieldHeight)]";
  if (two) {
    format += "[textFieldSeparatorView]";
    format += "[secondaryTextField(==secondaryTextFieldHeight)]";
  }
  format += "|";
  return format;
}

}  // namespace kindora
