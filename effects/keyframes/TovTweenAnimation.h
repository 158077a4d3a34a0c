// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "effects/keyframes/TovAnimation.h"
#include "effects/keyframes/TovLinearEasing.h"

namespace kindora {

/// An eased way from one value to another over the duration.
class TovTweenAnimation final : public TovAnimation {
 public:
  TovTweenAnimation() = default;

  [[nodiscard]] const NSValue& fromValue() const { return fromValue_; }
  void setFromValue(NSValue value);
  [[nodiscard]] const NSValue& toValue() const { return toValue_; }
  void setToValue(NSValue value);
  /// May leave [0, 1], which extrapolates.
  [[nodiscard]] const TovEasingBlock& easing() const { return easing_; }
  void setEasing(TovEasingBlock easing);

  /// Made anew from the present settings at each call. Without an easing the program stops.
  [[nodiscard]] TovAnimationBlock animationBlock() const override;

  [[nodiscard]] Keys keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> copy() const override;

 private:
  TovTweenAnimation(const TovTweenAnimation&) = default;

  NSValue fromValue_;
  NSValue toValue_;
  TovEasingBlock easing_ = TovLinearEasing;
};

}  // namespace kindora
