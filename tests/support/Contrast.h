// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>

#include "platform/UIColor.h"

namespace kindora {

/// How well a colour is told from its ground, 1 to 21, as the guidelines for accessible contents
/// on the web define it.
[[nodiscard]] inline double contrast(const UIColor& color, const UIColor& ground) {
  const auto luminance = [](const UIColor& each) {
    const auto linear = [](double value) {
      return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(each.red) + 0.7152 * linear(each.green) + 0.0722 * linear(each.blue);
  };
  const auto [dark, light] = std::minmax({luminance(color), luminance(ground)});
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace kindora
