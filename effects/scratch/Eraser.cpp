// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/Eraser.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

namespace kindora {
namespace {

// How far, in pixels, a flattened arc may stray from the true one.
constexpr double kFlatness = 0.0005;

struct Segment {
  CGPoint from;
  CGPoint to;
};

// The part of the segment whose disc of this radius can reach the raster. Cutting there keeps every
// later sum small, however far outside a point may lie.
std::optional<Segment> reaching(const Raster& raster, CGPoint from, CGPoint to, double radius) {
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
  return Segment{{from.x + enter * delta.x, from.y + enter * delta.y},
                 {from.x + leave * delta.x, from.y + leave * delta.y}};
}

// value * keep / 255, rounded to nearest.
std::uint8_t scaled(std::uint8_t value, unsigned keep) {
  const unsigned product = value * keep + 128;
  return static_cast<std::uint8_t>((product + (product >> 8)) >> 8);
}

Rgba8 scaled(Rgba8 pixel, unsigned keep) {
  return {scaled(pixel.red, keep), scaled(pixel.green, keep), scaled(pixel.blue, keep),
          scaled(pixel.alpha, keep)};
}

// The outline as a convex polygon, clockwise as seen with y down.
std::vector<CGPoint> outline(const Segment& segment, double radius) {
  const double angle = std::atan2(segment.to.y - segment.from.y, segment.to.x - segment.from.x);
  const double widest = std::min(0.5, std::sqrt(8 * kFlatness / radius));
  const int steps = static_cast<int>(std::ceil(std::numbers::pi / widest));
  const double turn = std::numbers::pi / steps;
  // A polygon of the circle's own area.
  const double reach = radius * std::sqrt(turn / std::sin(turn));
  std::vector<CGPoint> points;
  points.reserve(2 * (static_cast<std::size_t>(steps) + 1));
  for (const auto& [centre, start] : {std::pair(segment.to, angle - std::numbers::pi / 2),
                                      std::pair(segment.from, angle + std::numbers::pi / 2)}) {
    for (int i = 0; i <= steps; ++i) {
      points.push_back({centre.x + reach * std::cos(start + i * turn),
                        centre.y + reach * std::sin(start + i * turn)});
    }
  }
  return points;
}

// One row of pixels under construction: the change of the coverage from each pixel to the next.
class CoverageRow {
 public:
  CoverageRow(double left, double right)
      : origin_(std::floor(left) - 1),
        changes_(static_cast<std::size_t>(std::ceil(right) - origin_) + 3) {}

  // Adds what lies right of a piece of outline inside this row; a negative sign takes it away.
  void add(CGPoint from, CGPoint to, double sign) {
    const double height = sign * (to.y - from.y);
    double x = std::min(from.x, to.x) - origin_;
    const double last = std::max(from.x, to.x) - origin_;
    if (height == 0) return;
    if (last == x) return addPiece(x, x, height);
    const double slope = height / (last - x);
    while (x < last) {
      const double next = std::min(last, std::floor(x) + 1);
      addPiece(x, next, slope * (next - x));
      x = next;
    }
  }

  // Calls visit(x, coverage) for every pixel from the first touched one to the last, then forgets.
  template <typename Visit>
  void finish(Visit visit) {
    double sum = 0;
    for (std::size_t i = first_; i <= last_ && i < changes_.size(); ++i) {
      sum += changes_[i];
      changes_[i] = 0;
      visit(origin_ + static_cast<double>(i), std::clamp(sum, 0.0, 1.0));
    }
    first_ = changes_.size();
    last_ = 0;
  }

 private:
  void addPiece(double from, double to, double height) {
    const auto cell = static_cast<std::size_t>(from);
    const double mean = (from + to) / 2 - static_cast<double>(cell);
    changes_[cell] += height * (1 - mean);
    changes_[cell + 1] += height * mean;
    first_ = std::min(first_, cell);
    last_ = std::max(last_, cell + 1);
  }

  double origin_;
  std::vector<double> changes_;
  std::size_t first_ = changes_.size();
  std::size_t last_ = 0;
};

// One side of the outline, walked down row by row.
class Side {
 public:
  Side(const std::vector<CGPoint>& points, std::size_t top, std::size_t bottom, bool forward)
      : points_(points),
        step_(forward ? 1 : points.size() - 1),
        index_(top),
        remaining_((forward ? bottom - top + points.size() : top - bottom + points.size()) %
                   points.size()),
        at_(points[top]) {}

  // Feeds the row all pieces above bottom that were not fed yet.
  void feed(CoverageRow& row, double bottom, double sign) {
    while (remaining_ > 0) {
      const std::size_t next = (index_ + step_) % points_.size();
      const CGPoint end = points_[next];
      if (end.y > bottom) {
        if (at_.y >= bottom) return;
        const double part = (bottom - at_.y) / (end.y - at_.y);
        const CGPoint cut{at_.x + part * (end.x - at_.x), bottom};
        row.add(at_, cut, sign);
        at_ = cut;
        return;
      }
      row.add(at_, end, sign);
      at_ = end;
      index_ = next;
      --remaining_;
    }
  }

 private:
  const std::vector<CGPoint>& points_;
  std::size_t step_;
  std::size_t index_;
  std::size_t remaining_;
  CGPoint at_;
};

void eraseOutline(Raster& raster, const std::vector<CGPoint>& points) {
  const auto byY = [](CGPoint a, CGPoint b) { return a.y < b.y; };
  const auto byX = [](CGPoint a, CGPoint b) { return a.x < b.x; };
  const auto [top, bottom] = std::minmax_element(points.begin(), points.end(), byY);
  const auto [left, right] = std::minmax_element(points.begin(), points.end(), byX);
  const auto width = static_cast<double>(raster.width());
  const auto height = static_cast<double>(raster.height());
  const auto start = static_cast<std::size_t>(top - points.begin());
  const auto lowest = static_cast<std::size_t>(bottom - points.begin());
  Side leftSide(points, start, lowest, false);
  Side rightSide(points, start, lowest, true);
  CoverageRow row(left->x, right->x);
  const double end = std::min(height, std::ceil(bottom->y));
  for (double y = std::floor(top->y); y < end; ++y) {
    leftSide.feed(row, y + 1, 1);
    rightSide.feed(row, y + 1, -1);
    row.finish([&](double x, double coverage) {
      if (y < 0 || x < 0 || x >= width) return;
      const auto keep = static_cast<unsigned>(std::lround((1 - coverage) * 255));
      if (keep == 255) return;
      const auto column = static_cast<std::size_t>(x);
      const auto line = static_cast<std::size_t>(y);
      raster.setPixel(column, line, scaled(raster.pixel(column, line), keep));
    });
  }
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
  if (const auto segment = reaching(raster, from, to, radius)) {
    eraseOutline(raster, outline(*segment, radius));
  }
}

}  // namespace kindora
