// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UITextField.h"

namespace kindora {

void UITextField::setReturnKeyType(UIReturnKeyType type) {
  if (returnKeyType_ == type) return;
  returnKeyType_ = type;
  changed();
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
