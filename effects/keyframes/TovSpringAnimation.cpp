// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovSpringAnimation.h"

#include <cmath>
#include <utility>

#include "effects/keyframes/TovKeys.h"
#include "effects/keyframes/TovMakeInterpolator.h"

namespace kindora {
namespace {

constexpr std::string_view kDampingKey = "damping";
constexpr std::string_view kMassKey = "mass";
constexpr std::string_view kStiffnessKey = "stiffness";
constexpr std::string_view kVelocityKey = "velocity";
constexpr std::string_view kAllowsOverdampingKey = "allowsOverdamping";

// Where the spring starts, seen from where it ends.
constexpr double kStart = -1;

// The transcendental functions are those of single precision; all around them is double.
double root(double x) { return std::sqrt(static_cast<float>(x)); }
double exponential(double x) { return std::exp(static_cast<float>(x)); }
double cosine(double x) { return std::cos(static_cast<float>(x)); }
double sine(double x) { return std::sin(static_cast<float>(x)); }
double hyperbolicCosine(double x) { return std::cosh(static_cast<float>(x)); }
double hyperbolicSine(double x) { return std::sinh(static_cast<float>(x)); }

// Hands make the curve of the regime: a function of time, 0 at 0 and tending to 1.
template <typename Make>
TovAnimationBlock withCurve(double decay, double frequency, double velocity, const Make& make) {
  const double slope = decay * kStart + velocity;
  if (decay < frequency) {
    const double omega = root(frequency * frequency - decay * decay);
    const double amplitude = slope / omega;
    return make([decay, omega, amplitude](double t) {
      return exponential(-decay * t) * (kStart * cosine(omega * t) + amplitude * sine(omega * t)) -
             kStart;
    });
  }
  if (decay > frequency) {
    const double omega = root(decay * decay - frequency * frequency);
    const double amplitude = slope / omega;
    return make([decay, omega, amplitude](double t) {
      return exponential(-decay * t) *
                 (kStart * hyperbolicCosine(omega * t) + amplitude * hyperbolicSine(omega * t)) -
             kStart;
    });
  }
  return make(
      [decay, slope](double t) { return exponential(-decay * t) * (kStart + slope * t) - kStart; });
}

}  // namespace

void TovSpringAnimation::setDamping(double damping) { change(damping_, damping, kDampingKey); }

void TovSpringAnimation::setMass(double mass) { change(mass_, mass, kMassKey); }

void TovSpringAnimation::setStiffness(double stiffness) {
  change(stiffness_, stiffness, kStiffnessKey);
}

void TovSpringAnimation::setVelocity(double velocity) { change(velocity_, velocity, kVelocityKey); }

void TovSpringAnimation::setFromValue(NSValue value) {
  change(fromValue_, std::move(value), kTovFromValueKey);
}

void TovSpringAnimation::setToValue(NSValue value) {
  change(toValue_, std::move(value), kTovToValueKey);
}

void TovSpringAnimation::setAllowsOverdamping(bool allows) {
  change(allowsOverdamping_, allows, kAllowsOverdampingKey);
}

double TovSpringAnimation::durationForEpsilon(double epsilon) const {
  constexpr double kStep = 0.1;
  const double beta = decay();
  const bool ends = epsilon > 0 && beta > 0;
  if (epsilon > 1 || !ends) return 0;
  double t = 0;
  do {
    t += kStep;
  } while (!(exponential(-beta * t) < epsilon));
  return t;
}

TovAnimationBlock TovSpringAnimation::animationBlock() const {
  const double frequency = root(stiffness_ / mass_);
  double beta = decay();
  if (beta > frequency && !allowsOverdamping_) beta = frequency;
  return withCurve(beta, frequency, velocity_, [this](auto curve) -> TovAnimationBlock {
    return [curve, interpolator = TovMakeInterpolator(fromValue_, toValue_)](
               double t, double /*duration*/) { return interpolator(curve(t)); };
  });
}

KeyValueObserving::Keys TovSpringAnimation::keyPathsForValuesAffectingValueForKey(
    std::string_view key) const {
  if (key == kTovAnimationBlockKey) {
    return {kDampingKey, kMassKey,  kStiffnessKey,        kVelocityKey,
            kTovFromKey, kTovToKey, kAllowsOverdampingKey};
  }
  return TovAnimation::keyPathsForValuesAffectingValueForKey(key);
}

std::shared_ptr<CAKeyframeAnimation> TovSpringAnimation::copy() const {
  return std::shared_ptr<CAKeyframeAnimation>(new TovSpringAnimation(*this));
}

}  // namespace kindora
