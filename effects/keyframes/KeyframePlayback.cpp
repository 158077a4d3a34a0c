// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/KeyframePlayback.h"

#include <algorithm>
#include <cmath>

#include "effects/keyframes/TovMakeInterpolator.h"

namespace kindora {
namespace {

NSValue between(const NSValue& from, const NSValue& to, double fraction) {
  return TovMakeInterpolator(from, to)(fraction);
}

// The uniform Catmull-Rom curve from p1 to p2 as straight blends of straight blends, which works
// for every kind of value that blends.
NSValue onCurve(const NSValue& p0, const NSValue& p1, const NSValue& p2, const NSValue& p3,
                double t) {
  const NSValue inner = between(p1, p2, t);
  const NSValue before = between(between(p0, p1, t + 1), inner, (t + 1) / 2);
  const NSValue after = between(inner, between(p2, p3, t - 1), t / 2);
  return between(before, after, t);
}

}  // namespace

KeyframePlayback::KeyframePlayback(const CAKeyframeAnimation& animation)
    : values_(animation.path() ? nullptr : animation.values()),
      path_(animation.path() ? std::make_shared<const UIBezierPath>(*animation.path()) : nullptr),
      timingFunction_(animation.timingFunction()),
      calculationMode_(animation.calculationMode()),
      duration_(animation.duration() > 0 ? animation.duration() : 0),
      runs_(animation.repeatCount() > 0 ? animation.repeatCount() : 1),
      length_(isEmpty() || duration_ == 0 ? 0 : duration_ * runs_),
      staysAtEnd_(animation.fillMode() == CAMediaTimingFillMode::forwards &&
                  !animation.isRemovedOnCompletion()) {}

bool KeyframePlayback::isEmpty() const {
  return path_ ? !path_->currentPoint() : !values_ || values_->count() == 0;
}

NSValue KeyframePlayback::valueAt(double elapsed) const {
  if (isEmpty()) return {};
  if (isFinishedAt(elapsed)) {
    if (!staysAtEnd_) return {};
    const double part = runs_ - std::floor(runs_);
    return valueAtFraction(part == 0 ? 1 : part);
  }
  const double run = std::max(elapsed, 0.0) / duration_;
  return valueAtFraction(run - std::floor(run));
}

NSValue KeyframePlayback::valueAtFraction(double fraction) const {
  const double way = timingFunction_ ? timingFunction_->valueAt(fraction) : fraction;
  if (path_) return NSValue::valueWithCGPoint(*path_->pointAt(way));
  const auto last = static_cast<double>(values_->count() - 1);
  return valueBetweenFrames(std::clamp(way * last, 0.0, last));
}

NSValue KeyframePlayback::valueBetweenFrames(double position) const {
  const auto index = static_cast<std::size_t>(position);
  const double fraction = position - static_cast<double>(index);
  if (fraction == 0) return frame(index);
  const NSValue from = frame(index);
  const NSValue to = frame(index + 1);
  if (calculationMode_ == CAAnimationCalculationMode::linear) return between(from, to, fraction);
  // At the ends the curve has no frame to come from or to go to.
  const NSValue before = index > 0 ? frame(index - 1) : from;
  const NSValue after = index + 2 < values_->count() ? frame(index + 2) : to;
  return onCurve(before, from, to, after, fraction);
}

}  // namespace kindora
