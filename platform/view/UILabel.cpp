// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UILabel.h"

namespace kindora {

void UILabel::setText(const std::optional<std::string>& text) {
  if (text_ == text) return;
  text_ = text;
  changed();
}

}  // namespace kindora
