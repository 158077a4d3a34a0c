// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace kindora {

/// A finger's way over a whole cover: lines from the right to the left edge, from top to bottom, a
/// brush diameter apart.
///
/// size is the view's size and radius the brush's, both in points; step is the distance from one
/// point to the next. The points start anew at the right of each line: a finger lifted and put
/// down. Empty for a size, radius or step that is not above 0.
[[nodiscard]] std::vector<std::vector<CGPoint>> scratchPath(CGSize size, double radius,
                                                            double step);

}  // namespace kindora
