// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/UIBezierPath.h"

#include <algorithm>
#include <cmath>

#include "effects/keyframes/WhereReaches.h"
#include "platform/FatalError.h"

namespace kindora {
namespace {

using QuadCurve = UIBezierPath::QuadCurve;

CGPoint pointOf(const QuadCurve& curve, double t) {
  const double rest = 1 - t;
  const auto blend = [&](double start, double control, double end) {
    return rest * rest * start + 2 * rest * t * control + t * t * end;
  };
  return {blend(curve.start.x, curve.control.x, curve.end.x),
          blend(curve.start.y, curve.control.y, curve.end.y)};
}

// The arc length of a quadratic curve from its start. Its velocity b + a t is a straight line in
// the plane of velocities: u runs along that line, h is the line's distance from the origin, and
// the speed is hypot(u, h), whose integral is elementary.
class ArcLength {
 public:
  explicit ArcLength(const QuadCurve& curve)
      : a_{2 * (curve.start.x - 2 * curve.control.x + curve.end.x),
           2 * (curve.start.y - 2 * curve.control.y + curve.end.y)},
        b_{2 * (curve.control.x - curve.start.x), 2 * (curve.control.y - curve.start.y)},
        acceleration_(std::hypot(a_.x, a_.y)) {}

  [[nodiscard]] double upTo(double t) const {
    // All but even speed: the difference of two integrals would lose its digits.
    constexpr double kEven = 1e-6;
    if (acceleration_ <= kEven * std::hypot(b_.x, b_.y)) {
      return t * std::hypot(b_.x + a_.x * t / 2, b_.y + a_.y * t / 2);
    }
    const double start = (a_.x * b_.x + a_.y * b_.y) / acceleration_;
    const double h = std::abs(a_.x * b_.y - a_.y * b_.x) / acceleration_;
    return (integral(start + acceleration_ * t, h) - integral(start, h)) / acceleration_;
  }

 private:
  // Of hypot(u, h) over u, from 0.
  static double integral(double u, double h) {
    const double bend = h * h > 0 ? h * h * std::asinh(u / h) : 0;
    return (u * std::hypot(u, h) + bend) / 2;
  }

  CGPoint a_;
  CGPoint b_;
  double acceleration_;
};

double lengthOf(const QuadCurve& curve) { return ArcLength(curve).upTo(1); }

}  // namespace

void UIBezierPath::moveToPoint(CGPoint point) { currentPoint_ = point; }

void UIBezierPath::addQuadCurveToPoint(CGPoint end, CGPoint controlPoint) {
  if (!currentPoint_) fatalError("a curve needs a current point");
  curves_.push_back({*currentPoint_, controlPoint, end});
  currentPoint_ = end;
}

double UIBezierPath::length() const {
  double sum = 0;
  for (const QuadCurve& curve : curves_) sum += lengthOf(curve);
  return sum;
}

std::optional<CGPoint> UIBezierPath::pointAt(double fraction) const {
  const double whole = length();
  if (!(whole > 0)) return currentPoint_;
  double rest = whole * std::clamp(fraction, 0.0, 1.0);
  for (const QuadCurve& curve : curves_) {
    const double own = lengthOf(curve);
    if (rest < own) {
      const ArcLength arc(curve);
      return pointOf(curve, whereReaches([&](double t) { return arc.upTo(t); }, rest));
    }
    rest -= own;
  }
  return curves_.back().end;
}

}  // namespace kindora
