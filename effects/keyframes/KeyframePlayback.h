// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One playing of an animation: what shows at a moment since it was started.
//
//   const KeyframePlayback playback(animation);      // at the start
//   show(playback.valueAt(elapsed));                 // each frame; nil shows the property's own
//   if (playback.isFinishedAt(elapsed)) tellDelegate();
//
// It keeps what it needs: later changes of the animation do not reach it. It has no clock and tells
// nobody; that is the player's part. Reading is safe on any thread.
#pragma once

#include <memory>
#include <optional>

#include "effects/keyframes/CAKeyframeAnimation.h"

namespace kindora {

class KeyframePlayback final {
 public:
  /// Reads the animation's values once.
  explicit KeyframePlayback(const CAKeyframeAnimation& animation);

  /// Seconds until the end: 0 when there is nothing to play, infinite when it never ends.
  [[nodiscard]] double length() const { return length_; }
  [[nodiscard]] bool isFinishedAt(double elapsed) const { return !(elapsed < length_); }

  /// The value that shows elapsed seconds after the start: a point for an animation along a path,
  /// else what the frames are. Nil means that the property shows its own value: when there is
  /// nothing to play, and after the end unless the animation stays and fills forwards.
  ///
  /// Frame i of n stands at i x duration / (n - 1); a single frame stands all the time.
  [[nodiscard]] NSValue valueAt(double elapsed) const;

 private:
  [[nodiscard]] bool isEmpty() const;
  [[nodiscard]] NSValue valueAtFraction(double fraction) const;
  [[nodiscard]] NSValue valueBetweenFrames(double position) const;
  [[nodiscard]] NSValue frame(std::size_t index) const { return values_->objectAtIndex(index); }

  NSArrayRef values_;
  std::shared_ptr<const UIBezierPath> path_;
  std::optional<CAMediaTimingFunction> timingFunction_;
  CAAnimationCalculationMode calculationMode_;
  double duration_;
  double runs_;
  double length_;
  bool staysAtEnd_;
};

}  // namespace kindora
