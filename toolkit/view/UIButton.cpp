// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIButton.h"

namespace kindora {

void UIButton::setTitle(const std::string& title) {
  if (title_ == title) return;
  title_ = title;
  changed();
}

void UIButton::setImage(const UIImageRef& image) { imageView_->setImage(image); }

}  // namespace kindora
