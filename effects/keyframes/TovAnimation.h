// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A keyframe animation whose values come from a function of time, 60 a second.
//
// The frames are taken at 0, 1/60, 2/60, ... and spread over the duration by whoever plays them;
// the end of the duration itself is never sampled.
#pragma once

#include "effects/keyframes/CAKeyframeAnimation.h"
#include "effects/keyframes/TovBlocks.h"

namespace kindora {

class TovAnimation : public CAKeyframeAnimation {
 public:
  TovAnimation() = default;

  /// The function of time as it is now; subclasses supply it, here there is none.
  [[nodiscard]] virtual TovAnimationBlock animationBlock() const { return nullptr; }

  /// A snapshot that computes element i as animationBlock(i / 60, duration) whenever it is read:
  /// the whole part of duration x 60 elements, none for a duration that is negative, not a number
  /// or too long to count. It may be read on any thread. Reading an element stops the program when
  /// there is no animation block.
  [[nodiscard]] NSArrayRef values() const override;
  /// Does nothing.
  void setValues(NSArrayRef values) override;

  [[nodiscard]] Keys keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> copy() const override;

 protected:
  TovAnimation(const TovAnimation&) = default;
};

}  // namespace kindora
