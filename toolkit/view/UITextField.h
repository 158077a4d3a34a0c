// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "platform/UIFont.h"
#include "toolkit/view/UITextInput.h"

namespace kindora {

class UITextField;

enum class UIReturnKeyType { standard, next, done };
enum class UITextAutocorrectionType { standard = 0, no = 1, yes = 2 };

/// Hears what happens in text fields and has a say in it.
class UITextFieldDelegate {
 public:
  virtual ~UITextFieldDelegate() = default;
  /// The return key was pressed. The answer is whether the key keeps its usual effect, which a
  /// field of one line does not have.
  virtual bool textFieldShouldReturn(UITextField& /*field*/) { return true; }
  /// The user is about to replace a range of the field's text, in UTF-16 units. False refuses; the
  /// delegate may then have set text and selection itself.
  virtual bool textFieldShouldChangeCharactersInRange(UITextField& /*field*/, NSRange /*range*/,
                                                      std::string_view /*replacementString*/) {
    return true;
  }
};

/// One line of text that the user edits.
class UITextField : public UITextInput {
 public:
  void setDelegate(std::weak_ptr<UITextFieldDelegate> delegate) { delegate_ = std::move(delegate); }
  /// Called after each edit by the user that was not refused, and while an input method composes.
  std::function<void(UITextField&)> editingChanged;

  [[nodiscard]] UIReturnKeyType returnKeyType() const { return returnKeyType_; }
  void setReturnKeyType(UIReturnKeyType type);

  /// Dots are shown in place of what is typed.
  [[nodiscard]] bool isSecureTextEntry() const { return secureTextEntry_; }
  void setSecureTextEntry(bool secure);
  [[nodiscard]] UITextAutocorrectionType autocorrectionType() const { return autocorrectionType_; }
  void setAutocorrectionType(UITextAutocorrectionType type);
  /// None is the storyboard's to choose; a field made in code then has the system font at 17
  /// points.
  [[nodiscard]] const std::optional<UIFont>& font() const { return font_; }
  void setFont(const UIFont& font);
  [[nodiscard]] UIFont shownFont() const;
  /// Between the field's edges and its text.
  [[nodiscard]] UIEdgeInsets textInsets() const { return textInsets_; }
  void setTextInsets(UIEdgeInsets insets);

  /// As high as a line with its insets.
  [[nodiscard]] CGSize intrinsicContentSize() const override;

  /// The user pressed the return key.
  void pressReturn();

 protected:
  bool shouldChange(NSRange range, std::string_view replacement) override;
  void didChange() override;

 private:
  template <typename Value>
  void assign(Value& field, const Value& value);

  std::weak_ptr<UITextFieldDelegate> delegate_;
  bool secureTextEntry_ = false;
  UITextAutocorrectionType autocorrectionType_ = UITextAutocorrectionType::standard;
  std::optional<UIFont> font_;
  UIEdgeInsets textInsets_;
  UIReturnKeyType returnKeyType_ = UIReturnKeyType::standard;
};

}  // namespace kindora
