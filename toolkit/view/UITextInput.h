// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/TextRange.h"
#include "platform/UIColor.h"
#include "toolkit/view/Responder.h"
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
  [[nodiscard]] NSRange selectedRange() const { return selection_; }
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

  // --- What the user does, told by whoever draws the view ---

  /// Replaces a range of the text without marked text. The replacement takes effect unless it is
  /// refused; true when it did.
  bool replaceRange(NSRange range, std::string_view replacement);
  /// Text at the caret on which an input method has not decided yet; empty when it gave up. Nobody
  /// may refuse it.
  void setMarkedText(std::string_view marked);
  [[nodiscard]] bool hasMarkedText() const { return !marked_.empty(); }

 protected:
  /// May refuse an edit by the user, and change the text itself instead.
  virtual bool shouldChange(NSRange /*range*/, std::string_view /*replacement*/) { return true; }
  /// The user has changed the text.
  virtual void didChange() {}

 private:
  void respondingDidChange() override { changed(); }
  [[nodiscard]] NSRange clamped(NSRange range) const;

  std::string text_;  // without marked text
  std::string marked_;
  NSRange selection_;
  std::optional<UIColor> textColor_;
  std::string placeholder_;
  UIKeyboardType keyboardType_ = UIKeyboardType::standard;
};

}  // namespace kindora
