// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

class CAKeyframeAnimation;

/// Hears about the end of an animation.
class CAAnimationDelegate {
 public:
  virtual ~CAAnimationDelegate() = default;
  /// Called once: finished is true when the animation ran to its end, false when it was taken away
  /// before.
  virtual void animationDidStop(CAKeyframeAnimation& animation, bool finished) = 0;
};

}  // namespace kindora
