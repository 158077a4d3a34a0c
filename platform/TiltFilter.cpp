// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/TiltFilter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kindora {
namespace {

constexpr double kTremor = 0.15;                    // seconds
constexpr double kHabit = 8;                        // seconds
constexpr double kFullTilt = std::numbers::pi / 6;  // radians
constexpr double kWeightless = 1;                   // metres per second squared

double across(const std::array<double, 3>& up) {
  return std::atan2(-up[0], std::hypot(up[1], up[2]));
}

double along(const std::array<double, 3>& up) { return std::atan2(up[1], up[2]); }

double share(double angle) {
  return std::clamp(std::remainder(angle, 2 * std::numbers::pi) / kFullTilt, -1.0, 1.0);
}

}  // namespace

TiltFilter::Tilt TiltFilter::addSample(const std::array<double, 3>& acceleration,
                                       std::chrono::milliseconds passed) {
  const double strength = std::hypot(acceleration[0], acceleration[1], acceleration[2]);
  if (strength >= kWeightless) {
    const Direction up{acceleration[0] / strength, acceleration[1] / strength,
                       acceleration[2] / strength};
    if (!now_) {
      now_ = up;
      usual_ = up;
    }
    const double seconds = std::chrono::duration<double>(passed).count();
    for (std::size_t axis = 0; axis < up.size(); ++axis) {
      (*now_)[axis] += (up[axis] - (*now_)[axis]) * (1 - std::exp(-seconds / kTremor));
      usual_[axis] += (up[axis] - usual_[axis]) * (1 - std::exp(-seconds / kHabit));
    }
  }
  if (!now_) return {};
  return {.horizontal = share(across(*now_) - across(usual_)),
          .vertical = share(along(usual_) - along(*now_))};
}

}  // namespace kindora
