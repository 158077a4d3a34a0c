// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/Eraser.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "effects/scratch/Capsule.h"

namespace kindora {
namespace {

// A larger brush is this one: it covers any raster whole, unless it is used from as far away.
constexpr double kGreatestRadius = 0x1p24;

// The part of the capsule that can reach the raster. Cutting there keeps all that follows small,
// however far outside a point may lie.
std::optional<Capsule> reaching(const Raster& raster, CGPoint from, CGPoint to, double radius) {
  const double margin = radius + 2;
  const CGPoint delta{to.x - from.x, to.y - from.y};
  double enter = 0;
  double leave = 1;
  const auto clip = [&](double start, double change, double low, double high) {
    if (change == 0) return start >= low && start <= high;
    double first = (low - start) / change;
    double second = (high - start) / change;
    if (first > second) std::swap(first, second);
    enter = std::max(enter, first);
    leave = std::min(leave, second);
    return enter <= leave;
  };
  const auto width = static_cast<double>(raster.width());
  const auto height = static_cast<double>(raster.height());
  if (!clip(from.x, delta.x, -margin, width + margin) ||
      !clip(from.y, delta.y, -margin, height + margin)) {
    return std::nullopt;
  }
  return Capsule{{from.x + enter * delta.x, from.y + enter * delta.y},
                 {from.x + leave * delta.x, from.y + leave * delta.y},
                 radius};
}

}  // namespace

void eraseDisc(Raster& raster, CGPoint centre, double radius) {
  eraseSegment(raster, centre, centre, radius);
}

void eraseSegment(Raster& raster, CGPoint from, CGPoint to, double radius) {
  if (!std::isfinite(from.x) || !std::isfinite(from.y) || !std::isfinite(to.x) ||
      !std::isfinite(to.y) || !(radius > 0) || raster.isEmpty()) {
    return;
  }
  const std::optional<Capsule> capsule =
      reaching(raster, from, to, std::min(radius, kGreatestRadius));
  if (!capsule) return;
  if (capsule->radius >= kLeastBroadRadius && capsule->radius <= kMostBroadRadius) {
    eraseBroad(raster, *capsule);
  } else {
    eraseThin(raster, *capsule);
  }
}

}  // namespace kindora
