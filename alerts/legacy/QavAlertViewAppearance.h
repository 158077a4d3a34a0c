// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "platform/UIFont.h"

namespace kindora {

/// The look of an alert's parts. Distances are in points.
struct QavAlertViewAppearance {
  UIFont titleLabelFont = UIFont::boldSystemFontOfSize(17);
  UIColor titleLabelTextColor = UIColor::darkTextColor();
  UIFont messageLabelFont = UIFont::systemFontOfSize(14);
  UIColor messageLabelTextColor = UIColor::darkTextColor();
  UIFont textFieldFont = UIFont::systemFontOfSize(13);
  UIColor textFieldTextColor = UIColor::darkTextColor();
  UIFont suggestedButtonFont = UIFont::boldSystemFontOfSize(17);
  UIFont normalButtonFont = UIFont::systemFontOfSize(17);
  std::optional<UIColor> buttonTextColor;  ///< none: the tint colour
  UIEdgeInsets contentPadding{.top = 19, .left = 15, .bottom = 18.5, .right = 15};
  double labelSpacing = 4;  ///< between title and message
  friend bool operator==(const QavAlertViewAppearance&, const QavAlertViewAppearance&) = default;
};

}  // namespace kindora
