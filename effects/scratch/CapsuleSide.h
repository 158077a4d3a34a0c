// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One side of a capsule, and the pixels that it crosses.
//
// The coordinate `along` runs along the side, `depth` across it. A near side has the capsule at
// larger depths, a far side at smaller ones: the left side is near and the right one far, with rows
// along and columns across; with the axes exchanged the upper side is near and the lower one far.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/Raster.h"

namespace kindora {

/// Four numbers that are computed with at once, and the eight channels of two pixels.
using Floats = float __attribute__((vector_size(16)));
using Ints = std::int32_t __attribute__((vector_size(16)));
using Words = std::uint64_t __attribute__((vector_size(16)));
using Channels = std::uint16_t __attribute__((vector_size(16)));

struct SidePoint {
  double along = 0;
  double depth = 0;
};

/// The centre line of a capsule, as all its sides see it.
struct CapsuleAxis {
  SidePoint first;  ///< the end with the smaller `along`
  SidePoint last;
  SidePoint direction;  ///< from first to last, of length 1
  double radius = 0;

  CapsuleAxis(SidePoint a, SidePoint b, double radius);
};

/// An arc, a line and another arc.
class CapsuleSide {
 public:
  /// Pixels have depths from 0 up to limit. Beyond -2 and limit + 2 no depths are told apart.
  static CapsuleSide near(const CapsuleAxis& axis, int limit);
  static CapsuleSide far(const CapsuleAxis& axis, int limit);

  /// Between these the depth changes by at most one pixel a pixel.
  [[nodiscard]] double steepStart() const { return steepStart_; }
  [[nodiscard]] double steepEnd() const { return steepEnd_; }
  [[nodiscard]] int limit() const { return limit_; }
  [[nodiscard]] bool isFar() const { return far_; }

  /// Writes the depths at count whole positions from first on, and up to three meaningless ones
  /// more. A far side counts its depths from the limit backwards.
  void depths(int first, int count, float* out) const;

 private:
  struct Centre {
    float along = 0;
    float depth = 0;
  };

  CapsuleSide(const CapsuleAxis& axis, int limit, bool far);
  void arc(Centre centre, int first, int begin, int end, float* out) const;

  float radius_;
  int limit_;
  bool far_;
  Centre first_;
  Centre last_;
  double lineStart_;
  double lineEnd_;
  Centre line_;
  float slope_;
  double steepStart_;
  double steepEnd_;
  bool leavesRaster_;
};

/// The pixels that a side crosses in a run of steps of one pixel, at most a tile long. Where the
/// side is steep a step crosses one pixel or two neighbours, and no third.
class Crossings {
 public:
  static constexpr int kMost = static_cast<int>(Raster::kTileSide);

  /// Looks at count steps from first on.
  Crossings(const CapsuleSide& side, int first, int count);

  /// Computes what whole() tells for all steps.
  void findWhole();
  /// Computes what pair() and keeps() tell for the steps from begin up to end.
  void findPairs(int begin, int end);

  /// The first pixel that is covered whole; on a far side the one behind the last such pixel.
  [[nodiscard]] int whole(int step) const { return whole_[static_cast<std::size_t>(step)]; }
  /// The first of the two pixels.
  [[nodiscard]] int pair(int step) const { return pair_[static_cast<std::size_t>(step)]; }
  /// What stays uncovered of the two pixels, in 256ths, once for each of their channels.
  [[nodiscard]] Channels keeps(int step) const {
    std::uint64_t both;
    std::memcpy(&both, keeps_.data() + 2 * static_cast<std::size_t>(step), sizeof both);
    const auto pairs = std::bit_cast<Ints>(Words{both, 0});
    return std::bit_cast<Channels>(__builtin_shufflevector(pairs, pairs, 0, 0, 1, 1));
  }

 private:
  int limit_;
  bool far_;
  int count_;
  std::array<float, kMost + 8> depth_;  // one more than steps, and what vectors write beyond
  std::array<std::int32_t, kMost + 4> whole_;
  std::array<std::int32_t, kMost + 4> pair_;
  std::array<std::int32_t, 2 * kMost + 8> keeps_;  // each in both halves
};

}  // namespace kindora
