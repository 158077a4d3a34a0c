// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "alerts/card/QavAlertControllerVisualStyle.h"

namespace kindora {

/// A narrow card in the manner of the phone. Hairlines are one pixel of the main screen as it is
/// when they are asked for. Override what is to look different.
class QavAlertControllerDefaultVisualStyle : public QavAlertControllerVisualStyle {
 public:
  [[nodiscard]] double width() const override { return 270; }
  [[nodiscard]] UIEdgeInsets contentPadding() const override {
    return {.top = 36, .left = 16, .bottom = 12, .right = 16};
  }
  [[nodiscard]] double cornerRadius() const override { return 7; }
  [[nodiscard]] UIEdgeInsets margins() const override { return {.top = 3, .bottom = 3}; }
  [[nodiscard]] UIOffset parallax() const override { return {15.75, 15.75}; }

  [[nodiscard]] UIFont titleLabelFont() const override { return UIFont::boldSystemFontOfSize(17); }
  [[nodiscard]] UIFont messageLabelFont() const override { return UIFont::systemFontOfSize(13); }
  [[nodiscard]] double labelSpacing() const override { return 18; }
  [[nodiscard]] double messageLabelBottomSpacing() const override { return 24; }

  [[nodiscard]] double actionViewHeight() const override { return 44; }
  [[nodiscard]] double minimumActionViewWidth() const override { return 90; }
  [[nodiscard]] UIViewRef actionViewHighlightBackgroundView() const override;
  [[nodiscard]] UIColor actionViewSeparatorColor() const override {
    return UIColor::colorWithWhite(0.5, 0.5);
  }
  [[nodiscard]] double actionViewSeparatorThickness() const override;
  /// Red for what destroys, else the tint of a view for which nobody chose one.
  [[nodiscard]] UIColor textColorForAction(const QavAlertAction& action) const override;
  [[nodiscard]] UIFont fontForAction(const QavAlertAction& action) const override;

  [[nodiscard]] UIFont textFieldFont() const override { return UIFont::systemFontOfSize(13); }
  [[nodiscard]] double estimatedTextFieldHeight() const override { return 25; }
  [[nodiscard]] double textFieldBorderWidth() const override;
  [[nodiscard]] UIColor textFieldBorderColor() const override {
    return UIColor::colorWithWhite(64.0 / 255, 1);
  }
  [[nodiscard]] UIEdgeInsets textFieldMargins() const override { return {4, 4, 4, 4}; }
};

}  // namespace kindora
