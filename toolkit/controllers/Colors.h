// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <algorithm>

#include "platform/UIColor.h"

namespace kindora {

/// As it is to be drawn now. Components are clamped, since a spring may carry a colour beyond its
/// range for a while.
[[nodiscard]] inline QColor toQColor(const UIColor& asked) {
  const UIColor color = asked.resolvedColor();
  const auto component = [](double value) {
    return static_cast<float>(std::clamp(value, 0.0, 1.0));
  };
  return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue),
                          component(color.alpha));
}

}  // namespace kindora
