// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/ScratchPath.h"

#include <algorithm>
#include <cmath>

namespace kindora {

std::vector<std::vector<CGPoint>> scratchPath(CGSize size, double radius, double step) {
  std::vector<std::vector<CGPoint>> lines;
  if (!(size.width > 0) || !(size.height > 0) || !(radius > 0) || !(step > 0)) return lines;
  const double count = std::ceil(size.height / (2 * radius));
  for (double line = 0; line < count; ++line) {
    const double y = std::min((2 * line + 1) * radius, size.height);
    std::vector<CGPoint> points;
    for (double x = size.width; x > 0; x -= step) points.push_back({x, y});
    points.push_back({0, y});
    lines.push_back(std::move(points));
  }
  return lines;
}

}  // namespace kindora
