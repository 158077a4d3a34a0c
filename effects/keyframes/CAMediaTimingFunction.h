// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

/// The pace of an animation: a cubic Bezier curve from (0, 0) to (1, 1) that maps the fraction of
/// time gone by (x) to the fraction of the way covered (y).
class CAMediaTimingFunction final {
 public:
  /// The x of both control points must lie in [0, 1]; the y may be anything.
  constexpr CAMediaTimingFunction(CGPoint control1, CGPoint control2)
      : control1_(control1), control2_(control2) {}

  /// Starts slowly and ends at full speed.
  [[nodiscard]] static constexpr CAMediaTimingFunction easeIn() { return {{0.42, 0}, {1, 1}}; }

  /// The fraction of the way at a fraction of the time; before 0 it is 0, after 1 it is 1.
  [[nodiscard]] double valueAt(double fraction) const;

  friend constexpr bool operator==(const CAMediaTimingFunction&,
                                   const CAMediaTimingFunction&) = default;

 private:
  CGPoint control1_;
  CGPoint control2_;
};

}  // namespace kindora
