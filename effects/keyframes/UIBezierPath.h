// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A path of quadratic curves, walked at even speed.
#pragma once

#include <optional>
#include <vector>

#include "platform/Geometry.h"

namespace kindora {

class UIBezierPath final {
 public:
  /// A curve that leaves start towards control and arrives at end from there.
  struct QuadCurve {
    CGPoint start;
    CGPoint control;
    CGPoint end;
    friend constexpr bool operator==(const QuadCurve&, const QuadCurve&) = default;
  };

  /// Lifts the pen; what follows starts here.
  void moveToPoint(CGPoint point);
  /// Draws from the current point; without one the program stops.
  void addQuadCurveToPoint(CGPoint end, CGPoint controlPoint);

  /// Where the pen is; none on an empty path.
  [[nodiscard]] std::optional<CGPoint> currentPoint() const { return currentPoint_; }
  [[nodiscard]] const std::vector<QuadCurve>& curves() const { return curves_; }
  /// Length of all that was drawn, in points.
  [[nodiscard]] double length() const;
  /// The point at a fraction of the length, clamped to [0, 1]; leaps between parts take no time. A
  /// path without length is at its current point; an empty one is nowhere.
  [[nodiscard]] std::optional<CGPoint> pointAt(double fraction) const;

  friend bool operator==(const UIBezierPath&, const UIBezierPath&) = default;

 private:
  std::optional<CGPoint> currentPoint_;
  std::vector<QuadCurve> curves_;
};

}  // namespace kindora
