// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/card/QavAlertAction.h"
#include "alerts/helpers/QavAutoLayout.h"
#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "platform/UIFont.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// How an alert looks. Lengths in points.
class QavAlertControllerVisualStyle {
 public:
  virtual ~QavAlertControllerVisualStyle() = default;

  // --- The card ---
  [[nodiscard]] virtual double width() const = 0;
  /// Around the texts: the top leads to the title's first baseline, the bottom lies below the text
  /// fields.
  [[nodiscard]] virtual UIEdgeInsets contentPadding() const = 0;
  [[nodiscard]] virtual double cornerRadius() const = 0;
  /// What stays free above and below the card at least.
  [[nodiscard]] virtual UIEdgeInsets margins() const = 0;
  /// How far the card floats with the phone's tilt, to each side.
  [[nodiscard]] virtual UIOffset parallax() const = 0;

  // --- Its texts ---
  [[nodiscard]] virtual UIFont titleLabelFont() const = 0;
  [[nodiscard]] virtual UIFont messageLabelFont() const = 0;
  /// From the title's last baseline to the message's first.
  [[nodiscard]] virtual double labelSpacing() const = 0;
  /// Below the message, or from its last baseline to the text fields.
  [[nodiscard]] virtual double messageLabelBottomSpacing() const = 0;

  // --- Its buttons ---
  [[nodiscard]] virtual double actionViewHeight() const = 0;
  /// Of buttons side by side.
  [[nodiscard]] virtual double minimumActionViewWidth() const = 0;
  /// Shown behind the title of a button that is pressed. A new view at each call.
  [[nodiscard]] virtual UIViewRef actionViewHighlightBackgroundView() const = 0;
  [[nodiscard]] virtual UIColor actionViewSeparatorColor() const = 0;
  [[nodiscard]] virtual double actionViewSeparatorThickness() const = 0;
  [[nodiscard]] virtual UIColor textColorForAction(const QavAlertAction& action) const = 0;
  [[nodiscard]] virtual UIFont fontForAction(const QavAlertAction& action) const = 0;

  // --- Its text fields ---
  [[nodiscard]] virtual UIFont textFieldFont() const = 0;
  /// What a row takes whose field does not say how high it is.
  [[nodiscard]] virtual double estimatedTextFieldHeight() const = 0;
  [[nodiscard]] virtual double textFieldBorderWidth() const = 0;
  [[nodiscard]] virtual UIColor textFieldBorderColor() const = 0;
  /// Between the border and the field.
  [[nodiscard]] virtual UIEdgeInsets textFieldMargins() const = 0;
};

}  // namespace kindora
