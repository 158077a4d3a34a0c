// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextInput.h"

#include <algorithm>

namespace kindora {

NSRange UITextInput::clamped(NSRange range) const {
  const std::size_t length = utf16Length(text_);
  const std::size_t location = std::min(range.location, length);
  return {location, std::min(range.length, length - location)};
}

std::string UITextInput::text() const {
  if (marked_.empty()) return text_;
  return stringByReplacingCharactersInRange(text_, {selection_.location, 0}, marked_);
}

void UITextInput::setText(std::string_view text) {
  if (text_ == text && marked_.empty()) return;
  text_ = text;
  marked_.clear();
  selection_ = {utf16Length(text_), 0};
  changed();
}

void UITextInput::setSelectedRange(NSRange range) {
  const NSRange inside = clamped(range);
  if (selection_ == inside) return;
  selection_ = inside;
  changed();
}

void UITextInput::setTextColor(const UIColor& color) {
  if (textColor_ == color) return;
  textColor_ = color;
  changed();
}

void UITextInput::setPlaceholder(std::string_view placeholder) {
  if (placeholder_ == placeholder) return;
  placeholder_ = placeholder;
  changed();
}

void UITextInput::setKeyboardType(UIKeyboardType type) {
  if (keyboardType_ == type) return;
  keyboardType_ = type;
  changed();
}

bool UITextInput::becomeFirstResponder() {
  enterResponderChain();
  return true;
}

bool UITextInput::resignFirstResponder() {
  leaveResponderChain();
  return true;
}

bool UITextInput::replaceRange(NSRange range, std::string_view replacement) {
  marked_.clear();
  const NSRange replaced = clamped(range);
  if (!shouldChange(replaced, replacement)) {
    changed();
    return false;
  }
  text_ = stringByReplacingCharactersInRange(text_, replaced, replacement);
  selection_ = clamped({replaced.location + utf16Length(replacement), 0});
  didChange();
  changed();
  return true;
}

void UITextInput::setMarkedText(std::string_view marked) {
  if (marked_ == marked) return;
  if (marked_.empty()) selection_.length = 0;
  marked_ = marked;
  didChange();
  changed();
}

}  // namespace kindora
