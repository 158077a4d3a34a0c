// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The functions that describe a motion. Whoever keeps one keeps a copy.
#pragma once

#include <cstddef>
#include <functional>

#include "effects/keyframes/NSValue.h"

namespace kindora {

/// The value at time t (seconds) of an animation that lasts duration seconds.
using TovAnimationBlock = std::function<NSValue(double t, double duration)>;
/// Linear progress from 0 to 1 in, eased progress out.
using TovEasingBlock = std::function<double(double fraction)>;
/// The value at a fraction of the way; fractions outside [0, 1] extrapolate.
using TovInterpolatorBlock = std::function<NSValue(double fraction)>;
/// The element at an index.
using TovElementBlock = std::function<NSValue(std::size_t index)>;

}  // namespace kindora
