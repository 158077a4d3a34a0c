// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UIImageView.h"

namespace kindora {

void UIImageView::setImage(const UIImageRef& image) {
  if (image_ == image) return;
  image_ = image;
  changed();
}

}  // namespace kindora
