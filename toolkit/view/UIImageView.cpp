// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIImageView.h"

namespace kindora {

template <typename Value>
void UIImageView::assign(Value& field, const Value& value) {
  if (field == value) return;
  field = value;
  changed();
}

void UIImageView::setImage(const UIImageRef& image) { assign(image_, image); }

void UIImageView::setContentMode(UIViewContentMode mode) { assign(contentMode_, mode); }

}  // namespace kindora
