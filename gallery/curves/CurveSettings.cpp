// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/curves/CurveSettings.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "effects/keyframes/CAMediaTimingFunction.h"
#include "effects/keyframes/TovSpringAnimation.h"
#include "effects/keyframes/TovTweenAnimation.h"
#include "platform/FatalError.h"

namespace kindora {
namespace {

constexpr double kRest = 0.001;  // of the way: what is closer counts as at rest

TovEasingBlock easingOf(const CAMediaTimingFunction& function) {
  return [function](double fraction) { return function.valueAt(fraction); };
}

std::shared_ptr<TovSpringAnimation> spring(const CurveSettings& settings) {
  auto animation = std::make_shared<TovSpringAnimation>();
  animation->setDamping(settings.damping);
  animation->setMass(settings.mass);
  animation->setStiffness(settings.stiffness);
  animation->setVelocity(settings.velocity);
  animation->setAllowsOverdamping(settings.allowsOverdamping);
  return animation;
}

std::string dampingInWords(const CurveSettings& settings) {
  const double critical = 2 * std::sqrt(settings.stiffness * settings.mass);
  if (std::abs(settings.damping - critical) < 1e-9) return "Critically damped";
  if (settings.damping < critical) return settings.damping > 0 ? "Underdamped" : "Undamped";
  return settings.allowsOverdamping ? "Overdamped" : "Damped no more than critically";
}

}  // namespace

std::span<const CurveTiming> curveTimings() {
  static const auto& timings = *new std::array<CurveTiming, 4>{{
      {"Linear", TovLinearEasing},
      {"Ease in", easingOf(CAMediaTimingFunction::easeIn())},
      {"Ease out", easingOf({{0, 0}, {0.58, 1}})},
      {"Overshoot", easingOf({{0.34, 1.56}, {0.64, 1}})},
  }};
  return timings;
}

std::shared_ptr<TovAnimation> curveAnimation(const CurveSettings& settings, NSValue from,
                                             NSValue to) {
  const auto between = [&](auto animation) -> std::shared_ptr<TovAnimation> {
    animation->setDuration(settings.duration);
    animation->setFromValue(std::move(from));
    animation->setToValue(std::move(to));
    return animation;
  };
  if (settings.kind == CurveKind::spring) return between(spring(settings));
  if (settings.timing >= curveTimings().size()) fatalError("there is no such timing");
  auto tween = std::make_shared<TovTweenAnimation>();
  tween->setEasing(curveTimings()[settings.timing].easing);
  return between(tween);
}

std::vector<double> curveFrames(const CurveSettings& settings) {
  const auto animation =
      curveAnimation(settings, NSValue::numberWithDouble(0), NSValue::numberWithDouble(1));
  const NSArrayRef values = animation->values();
  std::vector<double> frames;
  for (const NSValue& value : *values) frames.push_back(value.doubleValue());
  return frames;
}

std::string curveCharacter(const CurveSettings& settings) {
  if (settings.kind == CurveKind::tween) {
    return "Eased over the whole duration";
  }
  const double seconds = spring(settings)->durationForEpsilon(kRest);
  if (seconds == 0) return dampingInWords(settings) + ", never at rest";
  std::array<char, 32> number{};
  std::snprintf(number.data(), number.size(), "%.1f", seconds);
  return dampingInWords(settings) + ", decays within " + number.data() + " s";
}

}  // namespace kindora
