// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "platform/NSAttributedString.h"
#include "platform/UIColor.h"
#include "platform/UIFont.h"
#include "platform/services/TextMeasurer.h"
#include "toolkit/view/UIView.h"

namespace kindora {

enum class NSTextAlignment { left, center, right };

/// A view that shows text or none. A colour, font or alignment that is not set is the storyboard's
/// to choose; a label made in code has the system font at 17 points, near-black, on the left.
class UILabel : public UIView {
 public:
  [[nodiscard]] const std::optional<std::string>& text() const { return text_; }
  /// Takes an attributed text away.
  void setText(const std::optional<std::string>& text);
  /// None while the text is plain.
  [[nodiscard]] const std::optional<NSAttributedString>& attributedText() const {
    return attributedText_;
  }
  /// Takes the place of the plain text, which then has the same characters.
  void setAttributedText(const std::optional<NSAttributedString>& text);
  [[nodiscard]] const std::optional<UIColor>& textColor() const { return textColor_; }
  void setTextColor(const UIColor& color);
  [[nodiscard]] const std::optional<UIFont>& font() const { return font_; }
  void setFont(const UIFont& font);
  [[nodiscard]] const std::optional<NSTextAlignment>& textAlignment() const { return alignment_; }
  void setTextAlignment(NSTextAlignment alignment);
  /// Drawn grey while it is not enabled.
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// 0 for as many as the text needs.
  [[nodiscard]] int numberOfLines() const { return numberOfLines_; }
  void setNumberOfLines(int lines);
  /// The width for which the intrinsic height is told; 0 breaks no lines.
  [[nodiscard]] double preferredMaxLayoutWidth() const { return preferredMaxLayoutWidth_; }
  void setPreferredMaxLayoutWidth(double points);

  /// The text as it is drawn; empty when there is none.
  [[nodiscard]] NSAttributedString shownText() const;
  /// The label's font, or what a label made in code has in its place.
  [[nodiscard]] UIFont shownFont() const;

  [[nodiscard]] CGSize intrinsicContentSize() const override;
  [[nodiscard]] double firstBaselineFromTop() const override;
  [[nodiscard]] double lastBaselineFromBottom() const override;

 private:
  template <typename Value>
  void assign(Value& field, const Value& value);
  [[nodiscard]] TextExtent extent() const;

  std::optional<std::string> text_;
  std::optional<NSAttributedString> attributedText_;
  std::optional<UIColor> textColor_;
  std::optional<UIFont> font_;
  std::optional<NSTextAlignment> alignment_;
  bool enabled_ = true;
  int numberOfLines_ = 1;
  double preferredMaxLayoutWidth_ = 0;
};

}  // namespace kindora
