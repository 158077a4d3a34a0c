// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Where a spring is after some time, exactly, from where it was. One axis; displacement from rest
/// in points, velocity in points a second.
struct SpringState {
  double displacement = 0;
  double velocity = 0;
  friend constexpr bool operator==(const SpringState&, const SpringState&) = default;
};

/// A damped harmonic oscillator over one span of time. Any number of short spans comes to the same
/// as one long span, but for rounding.
class DampedSpring final {
 public:
  /// Frequency of the undamped swing in hertz, above 0; damping as a ratio to the critical one, 0
  /// or more; seconds, 0 or more.
  DampedSpring(double frequency, double damping, double seconds);

  [[nodiscard]] SpringState after(const SpringState& before) const {
    return {
        fromDisplacement_ * before.displacement + fromVelocity_ * before.velocity,
        velocityFromDisplacement_ * before.displacement + velocityFromVelocity_ * before.velocity};
  }

 private:
  // The motion is linear in where it starts.
  double fromDisplacement_;
  double fromVelocity_;
  double velocityFromDisplacement_;
  double velocityFromVelocity_;
};

}  // namespace kindora
