// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The finger's path and the cover that all erasers in this benchmark share.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Raster.h"

namespace kindora::scratchbench {

inline constexpr std::size_t kSide = 1200;     ///< pixels of the cover, both ways
inline constexpr double kRadius = 50;          ///< pixels
inline constexpr std::size_t kSegments = 512;  ///< of 6 to 20 pixels each

/// kSegments + 1 points of one wandering line inside the cover, the same in every run.
[[nodiscard]] const std::vector<CGPoint>& path();

/// The cover's pixels, row after row; opaque noise, so that nothing can be skipped.
[[nodiscard]] const std::vector<Rgba8>& coverPixels();

/// The covered pixels of one row of one segment.
struct Span {
  std::size_t first = 0;  ///< index into the cover's pixels
  std::size_t count = 0;
};
/// For each segment the pixels that erasing it changes.
[[nodiscard]] const std::vector<std::vector<Span>>& coveredSpans();

/// Seconds that the work took.
template <typename Work>
[[nodiscard]] double timed(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace kindora::scratchbench
