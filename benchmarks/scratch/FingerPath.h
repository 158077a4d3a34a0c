// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The finger's path and the cover that all erasers in this benchmark share.
#pragma once

#include <time.h>

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

/// Seconds of processor time that the calling thread spent on the work. Unlike the clock on the
/// wall it does not count what other programs took; what a peer hands to other threads is not
/// counted either.
template <typename Work>
[[nodiscard]] double timed(Work work) {
  const auto spent = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = spent();
  work();
  return spent() - start;
}

}  // namespace kindora::scratchbench
