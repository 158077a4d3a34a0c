// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include "platform/Geometry.h"

namespace kindora {

/// Whoever shows a view on the screen. It takes itself away from the view before it goes.
class UIViewRenderer {
 public:
  virtual ~UIViewRenderer() = default;

  /// Where the view's origin lies in the window; none while that is not known.
  [[nodiscard]] virtual std::optional<CGPoint> originInWindow() const = 0;
  /// Of a topmost view: something in its tree is to be laid out. Told once, until layoutIfNeeded is
  /// called, in time for the next frame. What was to be laid out before this renderer took over is
  /// not told again, so it lays the tree out when it begins.
  virtual void layoutScheduled() {}
};

}  // namespace kindora
