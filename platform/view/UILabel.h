// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "platform/UIColor.h"
#include "platform/UIFont.h"
#include "platform/view/UIView.h"

namespace kindora {

enum class NSTextAlignment { left, center, right };

/// A view that shows plain text or none. A colour, font or alignment that is not set is the
/// storyboard's to choose.
class UILabel final : public UIView {
 public:
  [[nodiscard]] const std::optional<std::string>& text() const { return text_; }
  void setText(const std::optional<std::string>& text);
  [[nodiscard]] const std::optional<UIColor>& textColor() const { return textColor_; }
  void setTextColor(const UIColor& color);
  [[nodiscard]] const std::optional<UIFont>& font() const { return font_; }
  void setFont(const UIFont& font);
  [[nodiscard]] const std::optional<NSTextAlignment>& textAlignment() const { return alignment_; }
  void setTextAlignment(NSTextAlignment alignment);

 private:
  std::optional<std::string> text_;
  std::optional<UIColor> textColor_;
  std::optional<UIFont> font_;
  std::optional<NSTextAlignment> alignment_;
};

}  // namespace kindora
