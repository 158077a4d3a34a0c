// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextView.h"

namespace kindora {

void UITextView::setContentInset(double points) {
  if (contentInset_ == points) return;
  contentInset_ = points;
  changed();
}

void UITextView::didChange() {
  if (const auto delegate = delegate_.lock()) delegate->textViewDidChange(*this);
}

}  // namespace kindora
