// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/scratch/FingerPath.h"

#include <cmath>
#include <cstdint>
#include <random>

#include "effects/scratch/Eraser.h"

namespace kindora::scratchbench {
namespace {

std::vector<CGPoint> makePath() {
  std::mt19937 random(20260);
  // Not a standard distribution: those differ between libraries.
  const auto uniform = [&random](double low, double high) {
    return low + (high - low) * static_cast<double>(random()) / 4294967296.0;
  };
  std::vector<CGPoint> points{{kSide / 2.0, kSide / 2.0}};
  double heading = 0;
  while (points.size() < kSegments + 1) {
    const double length = uniform(6, 20);
    heading += uniform(-0.5, 0.5);
    CGPoint next{points.back().x + length * std::cos(heading),
                 points.back().y + length * std::sin(heading)};
    if (next.x < 0 || next.y < 0 || next.x > kSide || next.y > kSide) {
      heading += 1;
      continue;
    }
    points.push_back(next);
  }
  return points;
}

std::vector<Rgba8> makeCover() {
  std::mt19937 random(7);
  std::vector<Rgba8> pixels(kSide * kSide);
  for (Rgba8& pixel : pixels) {
    const auto bits = static_cast<std::uint32_t>(random());
    pixel = {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
             static_cast<std::uint8_t>(bits >> 16), 255};
  }
  return pixels;
}

std::vector<Span> spansOf(CGPoint from, CGPoint to) {
  static const Raster opaque(kSide, kSide,
                             std::vector<Rgba8>(kSide * kSide, Rgba8{255, 255, 255, 255}));
  Raster erased = opaque;
  eraseSegment(erased, from, to, kRadius);
  const auto changed = [&](std::size_t x, std::size_t y) { return erased.pixel(x, y).alpha < 255; };
  std::vector<Span> spans;
  for (std::size_t y = 0; y < kSide; ++y) {
    std::size_t left = 0;
    while (left < kSide && !changed(left, y)) ++left;
    if (left == kSide) continue;
    std::size_t right = kSide;
    while (!changed(right - 1, y)) --right;
    spans.push_back({y * kSide + left, right - left});
  }
  return spans;
}

std::vector<std::vector<Span>> makeSpans() {
  std::vector<std::vector<Span>> spans;
  for (std::size_t i = 0; i < kSegments; ++i) spans.push_back(spansOf(path()[i], path()[i + 1]));
  return spans;
}

}  // namespace

const std::vector<CGPoint>& path() {
  static const std::vector<CGPoint> points = makePath();
  return points;
}

const std::vector<Rgba8>& coverPixels() {
  static const std::vector<Rgba8> pixels = makeCover();
  return pixels;
}

const std::vector<std::vector<Span>>& coveredSpans() {
  static const std::vector<std::vector<Span>> spans = makeSpans();
  return spans;
}

}  // namespace kindora::scratchbench
