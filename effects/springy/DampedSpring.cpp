// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/DampedSpring.h"

#include <cmath>
#include <numbers>

namespace kindora {

// x'' = -2 d x' - w^2 x has the solution x(t) = e^(-d t) (c(t) x0 + s(t) (v0 + d x0)), where c and
// s are the cosine and the sine over its frequency below critical damping, the hyperbolic ones
// above, and 1 and t at it. Its derivative is e^(-d t) (c(t) v0 - s(t) (d v0 + w^2 x0)).
DampedSpring::DampedSpring(double frequency, double damping, double seconds) {
  const double w = 2 * std::numbers::pi * frequency;
  const double d = damping * w;
  const double square = (w - d) * (w + d);
  const double swing = std::sqrt(std::abs(square));
  double c = 1;
  double s = seconds;
  double decay = std::exp(-d * seconds);
  if (square > 0) {
    c = std::cos(swing * seconds);
    s = std::sin(swing * seconds) / swing;
  } else if (square < 0) {
    // In one exponential with the decay, which keeps both from overflowing.
    const double slow = std::exp((swing - d) * seconds);
    const double fast = std::exp((-swing - d) * seconds);
    c = (slow + fast) / 2;
    s = (slow - fast) / (2 * swing);
    decay = 1;
  }
  fromDisplacement_ = decay * (c + d * s);
  fromVelocity_ = decay * s;
  velocityFromDisplacement_ = -decay * w * w * s;
  velocityFromVelocity_ = decay * (c - d * s);
}

}  // namespace kindora
