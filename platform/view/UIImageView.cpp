// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UIImageView.h"

namespace kindora {

void UIImageView::setImage(const UIImageRef& image) {
  if (image_ == image) return;
  image_ = image;
  changed();
}

void UIImageView::setContentMode(UIViewContentMode mode) {
  if (contentMode_ == mode) return;
  contentMode_ = mode;
  changed();
}

void UIImageView::setTintColor(const UIColor& color) {
  if (tintColor_ == color) return;
  tintColor_ = color;
  changed();
}

}  // namespace kindora
