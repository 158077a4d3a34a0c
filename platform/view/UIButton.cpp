// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/view/UIButton.h"

namespace kindora {

void UIButton::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed();
}

void UIButton::setTitle(const std::string& title) {
  if (title_ == title) return;
  title_ = title;
  changed();
}

}  // namespace kindora
