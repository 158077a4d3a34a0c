// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAccessibility.h"

namespace kindora {

void UIViewAccessibility::setAccessibility(UIAccessibilityRole role,
                                           const std::optional<std::string>& label) {
  if (accessibilityRole_ == role && accessibilityLabel_ == label) return;
  accessibilityRole_ = role;
  accessibilityLabel_ = label;
  changed();
}

}  // namespace kindora
