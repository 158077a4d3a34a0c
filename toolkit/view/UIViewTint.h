// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"

namespace kindora {

/// Whether a view draws what is tinted in its tint, or in grey because something lies above it.
enum class UIViewTintAdjustmentMode { automatic = 0, normal = 1, dimmed = 2 };

/// The tint of a view for which nobody chose one.
inline constexpr UIColor kDefaultTintColor{0, 0.478, 1, 1};

/// The grey of the same lightness.
[[nodiscard]] constexpr UIColor desaturated(const UIColor& color) {
  const double grey = 0.299 * color.red + 0.587 * color.green + 0.114 * color.blue;
  return {grey, grey, grey, color.alpha};
}

}  // namespace kindora
