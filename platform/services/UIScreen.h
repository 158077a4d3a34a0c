// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

/// The screen on which the app is shown.
class UIScreen {
 public:
  virtual ~UIScreen() = default;
  /// Pixels a point.
  [[nodiscard]] virtual double scale() const = 0;
  /// What of it the app may use, in points: all of a phone's screen, the app's window elsewhere.
  [[nodiscard]] virtual CGRect bounds() const = 0;
};

}  // namespace kindora
