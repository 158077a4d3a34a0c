// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextInput.h"

#include <algorithm>
#include <utility>

namespace kindora {
namespace {

// The byte behind the character that begins at that byte.
std::size_t endOfCharacter(std::string_view text, std::size_t at) {
  static_cast<void>(nextCharacter(text, at));
  return at;
}

bool isOneCharacter(std::string_view text) {
  return !text.empty() && endOfCharacter(text, 0) == text.size();
}

}  // namespace

NSRange UITextInput::clamped(NSRange range) const {
  const std::size_t length = utf16Length(text_);
  const std::size_t location = std::min(range.location, length);
  return {location, std::min(range.length, length - location)};
}

std::string UITextInput::text() const {
  if (!marked_) return text_;
  return stringByReplacingCharactersInRange(text_, marked_->range, marked_->text);
}

void UITextInput::setText(std::string_view text) {
  if (text_ == text && !marked_) return;
  text_ = text;
  marked_.reset();
  selection_ = {utf16Length(text_), 0};
  if (!editing_) history_.clear();
  changed();
}

NSRange UITextInput::selectedRange() const {
  if (!marked_) return selection_;
  return {marked_->range.location + utf16Length(marked_->text), 0};
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

bool UITextInput::carryOut(NSRange range, std::string_view replacement) {
  const bool composed = std::exchange(marked_, std::nullopt).has_value();
  editing_ = true;
  const bool accepted = shouldChange(range, replacement);
  editing_ = false;
  if (accepted) {
    text_ = stringByReplacingCharactersInRange(text_, range, replacement);
    selection_ = clamped({range.location + utf16Length(replacement), 0});
  }
  if (accepted || composed) didChange();
  return accepted;
}

bool UITextInput::replaceRange(NSRange range, std::string_view replacement) {
  const NSRange replaced = clamped(range);
  TextHistory::State before{text_, selection_};
  const bool accepted = carryOut(replaced, replacement);
  if (text_ != before.text) {
    history_.add(std::move(before), selection_,
                 replaced.length == 0 && isOneCharacter(replacement));
  }
  changed();
  return accepted;
}

bool UITextInput::deleteForward(NSRange range) {
  const std::string before = text_;
  NSRange deleted = clamped(range);
  for (;;) {
    setSelectedRange(deleted);
    if (replaceRange(deleted, {})) return true;
    // Only who lays the text out moves the caret.
    const bool laidOut = selection_ != deleted && text_ == before;
    const std::size_t next = utf8Offset(text_, deleted.end());
    if (!laidOut || next == text_.size()) return false;
    const std::size_t length = endOfCharacter(text_, next) - next;
    deleted.length += utf16Length(std::string_view(text_).substr(next, length));
  }
}

void UITextInput::setMarkedText(NSRange range, std::string_view marked) {
  Marked wanted{clamped(range), std::string(marked)};
  if (marked_ == wanted) return;
  marked_ = std::move(wanted);
  didChange();
  changed();
}

void UITextInput::discardMarkedText() {
  if (!marked_) return;
  marked_.reset();
  didChange();
  changed();
}

void UITextInput::undo() { restore(history_.back({text_, selection_})); }
void UITextInput::redo() { restore(history_.forth({text_, selection_})); }

void UITextInput::restore(const std::optional<TextHistory::State>& wanted) {
  if (!wanted) return;
  const TextHistory::State now{text_, selection_};
  // A delegate may go by what is selected.
  selection_ = {0, utf16Length(text_)};
  carryOut(selection_, wanted->text);
  if (text_ == wanted->text) {
    selection_ = wanted->selection;
  } else if (text_ == now.text) {
    selection_ = now.selection;
  }
  changed();
}

}  // namespace kindora
