// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/TextRange.h"
#include "platform/UIColor.h"
#include "toolkit/view/Responder.h"
#include "toolkit/view/TextHistory.h"
#include "toolkit/view/UIView.h"

namespace kindora {

enum class UIKeyboardType { standard, phonePad };

/// A view into which the user types while it has the keyboard.
///
/// Its text is what the user sees: text that an input method has not decided on yet is part of it.
class UITextInput : public UIView, public Responder {
 public:
  UITextInput() : Responder(ResponderEvents::keys) {}

  [[nodiscard]] std::string text() const;
  /// Puts the caret behind the text. Tells only those who draw the view.
  void setText(std::string_view text);
  /// A caret behind the marked text while there is any.
  [[nodiscard]] NSRange selectedRange() const;
  /// A range that reaches beyond the end stops there.
  void setSelectedRange(NSRange range);
  /// None is the storyboard's to choose.
  [[nodiscard]] const std::optional<UIColor>& textColor() const { return textColor_; }
  void setTextColor(const UIColor& color);
  /// Shown while there is no text.
  [[nodiscard]] const std::string& placeholder() const { return placeholder_; }
  void setPlaceholder(std::string_view placeholder);
  [[nodiscard]] UIKeyboardType keyboardType() const { return keyboardType_; }
  void setKeyboardType(UIKeyboardType type);

  /// Takes the keyboard over from whoever had it before. True.
  bool becomeFirstResponder();
  bool resignFirstResponder() override;

  // --- What the user does, told by whoever draws the view; ranges are those of decidedText() ---

  /// The replacement takes effect unless it is refused; true when it did. Marked text is gone then.
  bool replaceRange(NSRange range, std::string_view replacement);
  /// Deletes what stands behind the caret, and one character more as long as the text is laid out
  /// to be what it was, as around a separator; true when that was not refused.
  bool deleteForward(NSRange range);
  /// Text on which an input method has not decided yet, shown in place of the range. Nobody may
  /// refuse it, and it lasts until the range is replaced.
  void setMarkedText(NSRange range, std::string_view marked);
  /// The input method has given up: the text is what it was.
  void discardMarkedText();
  [[nodiscard]] bool hasMarkedText() const { return marked_.has_value(); }
  /// The text as it was before an input method began to compose, and what was selected then.
  [[nodiscard]] const std::string& decidedText() const { return text_; }
  [[nodiscard]] NSRange decidedSelection() const { return selection_; }
  /// Takes back the last edit, or does again what was taken back; each may be refused like any
  /// other edit. Text from the program has no history.
  void undo();
  void redo();

 protected:
  /// May refuse an edit by the user, and change the text itself instead.
  virtual bool shouldChange(NSRange /*range*/, std::string_view /*replacement*/) { return true; }
  /// The user has changed the text.
  virtual void didChange() {}

 private:
  void respondingDidChange() override { changed(); }
  struct Marked {
    NSRange range;
    std::string text;
    friend bool operator==(const Marked&, const Marked&) = default;
  };

  [[nodiscard]] NSRange clamped(NSRange range) const;
  bool carryOut(NSRange range, std::string_view replacement);
  void restore(const std::optional<TextHistory::State>& wanted);

  std::string text_;  // without marked text
  std::optional<Marked> marked_;
  NSRange selection_;
  TextHistory history_;
  bool editing_ = false;  // what is set now is the answer to an edit
  std::optional<UIColor> textColor_;
  std::string placeholder_;
  UIKeyboardType keyboardType_ = UIKeyboardType::standard;
};

}  // namespace kindora
