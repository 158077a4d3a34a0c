// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UILabel.h"

namespace kindora {

void UILabel::setText(const std::optional<std::string>& text) {
  if (text_ == text) return;
  text_ = text;
  changed();
}

void UILabel::setTextColor(const UIColor& color) {
  if (textColor_ == color) return;
  textColor_ = color;
  changed();
}

void UILabel::setFont(const UIFont& font) {
  if (font_ == font) return;
  font_ = font;
  changed();
}

void UILabel::setTextAlignment(NSTextAlignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  changed();
}

}  // namespace kindora
