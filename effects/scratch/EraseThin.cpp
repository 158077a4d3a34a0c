// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Sums exact areas along the outline, flattened to a polygon, row by row.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "effects/scratch/Capsule.h"

namespace kindora {
namespace {

// How far, in pixels, a flattened arc may stray from the true one.
constexpr double kFlatness = 0.0005;

// The outline as a convex polygon, clockwise as seen with y down.
std::vector<CGPoint> outline(const Capsule& capsule) {
  const double angle = std::atan2(capsule.to.y - capsule.from.y, capsule.to.x - capsule.from.x);
  const double widest = std::min(0.5, std::sqrt(8 * kFlatness / capsule.radius));
  const int steps = static_cast<int>(std::ceil(std::numbers::pi / widest));
  const double turn = std::numbers::pi / steps;
  // A polygon of the circle's own area.
  const double reach = capsule.radius * std::sqrt(turn / std::sin(turn));
  std::vector<CGPoint> points;
  points.reserve(2 * (static_cast<std::size_t>(steps) + 1));
  for (const auto& [centre, start] : {std::pair(capsule.to, angle - std::numbers::pi / 2),
                                      std::pair(capsule.from, angle + std::numbers::pi / 2)}) {
    for (int i = 0; i <= steps; ++i) {
      points.push_back({centre.x + reach * std::cos(start + i * turn),
                        centre.y + reach * std::sin(start + i * turn)});
    }
  }
  return points;
}

// One row of pixels under construction: the change of the coverage from each pixel to the next. A
// column is kept on either side of the raster for all that lies out there.
class CoverageRow {
 public:
  explicit CoverageRow(std::size_t width)
      : right_(static_cast<double>(width)), changes_(width + 3), first_(changes_.size()) {}

  // Adds what lies right of a piece of outline inside this row; a negative sign takes it away.
  void add(CGPoint from, CGPoint to, double sign) {
    const double height = sign * (to.y - from.y);
    if (height == 0) return;
    const double left = std::min(from.x, to.x);
    const double right = std::max(from.x, to.x);
    if (left == right) return addPiece(bounded(left), bounded(left), height);
    const double slope = height / (right - left);
    addOutside(left, std::min(right, 0.0), slope);
    addOutside(std::max(left, right_), right, slope);
    const double last = std::min(right, right_);
    for (double x = std::max(left, 0.0); x < last;) {
      const double next = std::min(last, std::floor(x) + 1);
      addPiece(x, next, slope * (next - x));
      x = next;
    }
  }

  // Calls visit(column, coverage) for every pixel from the first touched one to the last, then
  // forgets.
  template <typename Visit>
  void finish(Visit visit) {
    double sum = 0;
    const std::size_t end = std::min(last_, changes_.size() - 3);
    for (std::size_t i = first_; i <= last_; ++i) {
      sum += changes_[i];
      changes_[i] = 0;
      if (i > 0 && i <= end) visit(i - 1, std::clamp(sum, 0.0, 1.0));
    }
    first_ = changes_.size();
    last_ = 0;
  }

 private:
  [[nodiscard]] double bounded(double x) const { return std::clamp(x, -0.5, right_); }

  void addOutside(double from, double to, double slope) {
    if (from < to) addPiece(bounded(from), bounded(from), slope * (to - from));
  }

  void addPiece(double from, double to, double height) {
    const auto cell = static_cast<std::size_t>(from + 1);
    const double mean = (from + to) / 2 + 1 - static_cast<double>(cell);
    changes_[cell] += height * (1 - mean);
    changes_[cell + 1] += height * mean;
    first_ = std::min(first_, cell);
    last_ = std::max(last_, cell + 1);
  }

  double right_;
  std::vector<double> changes_;
  std::size_t first_;
  std::size_t last_ = 0;
};

// One side of the outline, walked down.
class OutlineSide {
 public:
  OutlineSide(const std::vector<CGPoint>& points, std::size_t top, std::size_t bottom, bool forward)
      : points_(points),
        step_(forward ? 1 : points.size() - 1),
        index_(top),
        remaining_((forward ? bottom - top + points.size() : top - bottom + points.size()) %
                   points.size()),
        at_(points[top]) {}

  // Calls visit(from, to) for all pieces above bottom that were not passed yet.
  template <typename Visit>
  void walk(double bottom, Visit visit) {
    while (remaining_ > 0) {
      const std::size_t next = (index_ + step_) % points_.size();
      const CGPoint end = points_[next];
      if (end.y > bottom) {
        if (at_.y >= bottom) return;
        const double part = (bottom - at_.y) / (end.y - at_.y);
        const CGPoint cut{at_.x + part * (end.x - at_.x), bottom};
        visit(at_, cut);
        at_ = cut;
        return;
      }
      visit(at_, end);
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
  const auto [top, bottom] = std::minmax_element(points.begin(), points.end(), byY);
  const auto highest = static_cast<std::size_t>(top - points.begin());
  const auto lowest = static_cast<std::size_t>(bottom - points.begin());
  OutlineSide left(points, highest, lowest, false);
  OutlineSide right(points, highest, lowest, true);
  left.walk(0, [](CGPoint, CGPoint) {});
  right.walk(0, [](CGPoint, CGPoint) {});
  CoverageRow row(raster.width());
  const double end = std::min(static_cast<double>(raster.height()), std::ceil(bottom->y));
  for (double y = std::max(0.0, std::floor(top->y)); y < end; ++y) {
    left.walk(y + 1, [&row](CGPoint from, CGPoint to) { row.add(from, to, 1); });
    right.walk(y + 1, [&row](CGPoint from, CGPoint to) { row.add(from, to, -1); });
    row.finish([&raster, y](std::size_t column, double coverage) {
      const auto keep = static_cast<unsigned>(std::lround((1 - coverage) * 256));
      if (keep == 256) return;
      const auto line = static_cast<std::size_t>(y);
      raster.setPixel(column, line, kept(raster.pixel(column, line), keep));
    });
  }
}

}  // namespace

void eraseThin(Raster& raster, const Capsule& capsule) { eraseOutline(raster, outline(capsule)); }

}  // namespace kindora
