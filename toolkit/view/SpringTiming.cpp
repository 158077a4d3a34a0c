// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/SpringTiming.h"

#include <algorithm>
#include <cmath>

namespace kindora {

double springProgress(const UISpring& spring, double duration, double seconds) {
  const double ratio = std::max(spring.dampingRatio, 0.01);
  const double velocity = spring.initialVelocity;
  const double decay = std::log(1000.0) / duration;  // of the slowest part, a second
  if (ratio < 1) {
    const double frequency = decay / ratio;
    const double damped = frequency * std::sqrt(1 - ratio * ratio);
    return 1 -
           std::exp(-decay * seconds) * (std::cos(damped * seconds) +
                                         (decay - velocity) / damped * std::sin(damped * seconds));
  }
  if (ratio == 1) return 1 - std::exp(-decay * seconds) * (1 + (decay - velocity) * seconds);
  // The roots' product is the square of the frequency, so the fast one follows from the slow one.
  const double root = std::sqrt(ratio * ratio - 1);
  const double fast = decay * (ratio + root) / (ratio - root);
  const double slowShare = (fast - velocity) / (fast - decay);
  return 1 - slowShare * std::exp(-decay * seconds) - (1 - slowShare) * std::exp(-fast * seconds);
}

}  // namespace kindora
