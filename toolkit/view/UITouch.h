// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace kindora {

enum class UITouchPhase { began = 0, moved = 1, stationary = 2, ended = 3, cancelled = 4 };

/// One finger at one moment; locations in the space of the view that it touches, in points.
struct UITouch {
  UITouchPhase phase = UITouchPhase::began;
  CGPoint location;
  CGPoint previousLocation;
};

/// The fingers that one event speaks of, in the event's order.
using UITouches = std::vector<UITouch>;

}  // namespace kindora
