// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

/// The part of what scrolls in which there are cells: what is in sight and a margin around it, in
/// points, so that nothing is missing at the edges while it scrolls.
[[nodiscard]] constexpr CGRect nearSight(const CGRect& bounds) {
  constexpr double kMargin = 100;
  return CGRectInset(bounds, -kMargin, -kMargin);
}

}  // namespace kindora
