// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// How a spring moves a view to its new state in a given time.
struct UISpring {
  double dampingRatio = 1;     ///< below 1 it overshoots, from 1 on it approaches monotonically
  double initialVelocity = 0;  ///< in ways a second: 1 covers the whole way in one second
};

/// The way that a spring has covered `seconds` after its release: 0 at the start, near 1 at the
/// end. The spring is as stiff as it must be for its slowest part to decay to a thousandth within
/// `duration` seconds, both positive. Solution of x'' + 2 z w x' + w w x = 0 for x = progress - 1.
/// A ratio of 0 or less counts as 0.01.
[[nodiscard]] double springProgress(const UISpring& spring, double duration, double seconds);

}  // namespace kindora
