// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "effects/keyframes/TovBlocks.h"

namespace kindora {

/// A function from 0 at from to 1 at to. Numbers and geometry go each component by itself,
/// from + (to - from) x fraction, not clamped; a transform is not taken apart into turns and
/// scales. The kind is that of from alone; a to of another kind counts as zeros. Integers and truth
/// values become real numbers. Anything else does not blend: from below 0.5, to from 0.5 on.
[[nodiscard]] TovInterpolatorBlock TovMakeInterpolator(const NSValue& from, const NSValue& to);

}  // namespace kindora
