// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/CAMediaTimingFunction.h"

#include "effects/keyframes/WhereReaches.h"

namespace kindora {
namespace {

// One coordinate of the curve whose ends are 0 and 1.
double bezier(double control1, double control2, double t) {
  const double rest = 1 - t;
  return 3 * rest * rest * t * control1 + 3 * rest * t * t * control2 + t * t * t;
}

}  // namespace

double CAMediaTimingFunction::valueAt(double fraction) const {
  if (!(fraction > 0)) return 0;
  if (fraction >= 1) return 1;
  const double t =
      whereReaches([&](double at) { return bezier(control1_.x, control2_.x, at); }, fraction);
  return bezier(control1_.y, control2_.y, t);
}

}  // namespace kindora
