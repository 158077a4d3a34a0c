// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIMotionEffect.h"

namespace kindora {

CGPoint offsetAtTilt(const std::vector<UIMotionEffectGroup>& groups, CGPoint tilt) {
  CGPoint offset;
  for (const UIMotionEffectGroup& group : groups) {
    for (const UIInterpolatingMotionEffect& effect : group.motionEffects) {
      const bool isHorizontal =
          effect.type == UIInterpolatingMotionEffectType::tiltAlongHorizontalAxis;
      const double fraction = ((isHorizontal ? tilt.x : tilt.y) + 1) / 2;
      const double points =
          effect.minimumRelativeValue * (1 - fraction) + effect.maximumRelativeValue * fraction;
      if (effect.keyPath == "center.x") offset.x += points;
      if (effect.keyPath == "center.y") offset.y += points;
    }
  }
  return offset;
}

}  // namespace kindora
