// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextField.h"

#include "platform/services/ViewServices.h"

namespace kindora {

void UITextField::setReturnKeyType(UIReturnKeyType type) {
  if (returnKeyType_ == type) return;
  returnKeyType_ = type;
  changed();
}

template <typename Value>
void UITextField::assign(Value& field, const Value& value) {
  if (field == value) return;
  field = value;
  invalidateIntrinsicContentSize();
  changed();
}

void UITextField::setSecureTextEntry(bool secure) { assign(secureTextEntry_, secure); }
void UITextField::setAutocorrectionType(UITextAutocorrectionType type) {
  assign(autocorrectionType_, type);
}
void UITextField::setFont(const UIFont& font) { assign(font_, std::optional(font)); }
void UITextField::setTextInsets(UIEdgeInsets insets) { assign(textInsets_, insets); }

UIFont UITextField::shownFont() const { return font_.value_or(UIFont::systemFontOfSize(17)); }

CGSize UITextField::intrinsicContentSize() const {
  const double line = viewServices().text->lineHeight(shownFont());
  return {kNoIntrinsicMetric, textInsets_.top + line + textInsets_.bottom};
}

void UITextField::pressReturn() {
  if (const auto delegate = delegate_.lock()) delegate->textFieldShouldReturn(*this);
}

bool UITextField::shouldChange(NSRange range, std::string_view replacement) {
  const auto delegate = delegate_.lock();
  return !delegate || delegate->textFieldShouldChangeCharactersInRange(*this, range, replacement);
}

void UITextField::didChange() {
  if (editingChanged) editingChanged(*this);
}

}  // namespace kindora
