// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A damped spring from one value to another.
//
// The shape depends on the seconds gone by alone, not on the duration: a spring whose duration is
// too short is cut off. Below critical damping it overshoots. Above it (when allowed) the
// hyperbolic functions overflow single precision once their argument passes about 89; what comes of
// that is handed on as it is.
#pragma once

#include "effects/keyframes/TovAnimation.h"

namespace kindora {

class TovSpringAnimation final : public TovAnimation {
 public:
  TovSpringAnimation() = default;

  [[nodiscard]] double damping() const { return damping_; }
  void setDamping(double damping);
  [[nodiscard]] double mass() const { return mass_; }
  void setMass(double mass);
  [[nodiscard]] double stiffness() const { return stiffness_; }
  void setStiffness(double stiffness);
  /// Where the motion starts, in whole ways from the one value to the other a second.
  [[nodiscard]] double velocity() const { return velocity_; }
  void setVelocity(double velocity);
  [[nodiscard]] const NSValue& fromValue() const { return fromValue_; }
  void setFromValue(NSValue value);
  [[nodiscard]] const NSValue& toValue() const { return toValue_; }
  void setToValue(NSValue value);
  /// Whether a damping beyond the critical one counts; otherwise it counts as the critical one.
  [[nodiscard]] bool allowsOverdamping() const { return allowsOverdamping_; }
  void setAllowsOverdamping(bool allows);

  /// The first sum of tenths of a second at which e^(-damping / (2 mass) t) is below epsilon;
  /// stiffness, velocity and the critical damping have no say. 0 when epsilon is above 1, and also
  /// where no time would do: for an epsilon of 0 or less, for a decay of 0 or less, and for what is
  /// not a number. Takes as many steps as the result has tenths.
  [[nodiscard]] double durationForEpsilon(double epsilon) const;

  /// Made anew from the present settings at each call.
  [[nodiscard]] TovAnimationBlock animationBlock() const override;

  [[nodiscard]] Keys keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> copy() const override;

 private:
  TovSpringAnimation(const TovSpringAnimation&) = default;
  [[nodiscard]] double decay() const { return damping_ / (2 * mass_); }

  double damping_ = 10;
  double mass_ = 1;
  double stiffness_ = 100;
  double velocity_ = 0;
  NSValue fromValue_;
  NSValue toValue_;
  bool allowsOverdamping_ = false;
};

}  // namespace kindora
