// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "platform/view/UITextInput.h"

namespace kindora {

class UITextField;

enum class UIReturnKeyType { standard, next, done };

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
class UITextField final : public UITextInput {
 public:
  void setDelegate(std::weak_ptr<UITextFieldDelegate> delegate) { delegate_ = std::move(delegate); }
  /// Called after each edit by the user that was not refused, and while an input method composes.
  std::function<void(UITextField&)> editingChanged;

  [[nodiscard]] UIReturnKeyType returnKeyType() const { return returnKeyType_; }
  void setReturnKeyType(UIReturnKeyType type);

  /// The user pressed the return key.
  void pressReturn();

 protected:
  bool shouldChange(NSRange range, std::string_view replacement) override;
  void didChange() override;

 private:
  std::weak_ptr<UITextFieldDelegate> delegate_;
  UIReturnKeyType returnKeyType_ = UIReturnKeyType::standard;
};

}  // namespace kindora
