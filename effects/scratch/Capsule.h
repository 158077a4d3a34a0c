// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>

#include "platform/Geometry.h"
#include "platform/Raster.h"

namespace kindora {

/// All within a radius of a straight line between two points, or of one point. In pixels, y down.
struct Capsule {
  CGPoint from;
  CGPoint to;
  double radius = 0;
};

/// Erases a capsule of any radius, pixel by pixel.
void eraseThin(Raster& raster, const Capsule& capsule);

/// The radii of the capsules that eraseBroad takes: the outline is to be nearly straight from one
/// pixel to the next, and its positions are computed in single precision.
inline constexpr double kLeastBroadRadius = 28;
inline constexpr double kMostBroadRadius = 4096;

/// Erases a capsule whose outline is nearly straight from one pixel to the next, at about the speed
/// of storing its pixels.
void eraseBroad(Raster& raster, const Capsule& capsule);

/// Towards zero; low or high for what lies beyond them.
[[nodiscard]] inline int wholeWithin(double value, int low, int high) {
  return static_cast<int>(std::clamp<double>(value, low, high));
}

/// What one erased pixel keeps, keep being its uncovered part in 256ths from 0 to 256.
[[nodiscard]] inline Rgba8 kept(Rgba8 pixel, unsigned keep) {
  const auto channel = [keep](std::uint8_t value) {
    return static_cast<std::uint8_t>((value * keep + 128) >> 8);
  };
  return {channel(pixel.red), channel(pixel.green), channel(pixel.blue), channel(pixel.alpha)};
}

}  // namespace kindora
