// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace kindora {

enum class UIInterpolatingMotionEffectType {
  tiltAlongHorizontalAxis = 0,
  tiltAlongVerticalAxis = 1
};

/// Moves a property of a view with the phone's tilt: at tilt -1 by the minimum, at 1 by the
/// maximum.
struct UIInterpolatingMotionEffect {
  std::string keyPath;  ///< "center.x" or "center.y"; others show nothing
  UIInterpolatingMotionEffectType type = UIInterpolatingMotionEffectType::tiltAlongHorizontalAxis;
  double minimumRelativeValue = 0;  ///< points
  double maximumRelativeValue = 0;  ///< points
  friend bool operator==(const UIInterpolatingMotionEffect&,
                         const UIInterpolatingMotionEffect&) = default;
};

/// Effects that belong together.
struct UIMotionEffectGroup {
  std::vector<UIInterpolatingMotionEffect> motionEffects;
  friend bool operator==(const UIMotionEffectGroup&, const UIMotionEffectGroup&) = default;
};

/// How far a view with these effects is displaced at a tilt, each direction -1 to 1.
[[nodiscard]] CGPoint offsetAtTilt(const std::vector<UIMotionEffectGroup>& groups, CGPoint tilt);

}  // namespace kindora
