// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What the curves page sets, and the keyframe animation that comes of it.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "effects/keyframes/TovAnimation.h"

namespace kindora {

enum class CurveKind { spring, tween };

struct CurveSettings {
  CurveKind kind = CurveKind::spring;
  double duration = 1;  ///< seconds
  double damping = 10;
  double mass = 1;
  double stiffness = 100;
  double velocity = 0;  ///< whole ways a second
  bool allowsOverdamping = false;
  std::size_t timing = 0;  ///< index into curveTimings
  friend bool operator==(const CurveSettings&, const CurveSettings&) = default;
};

/// A way to ease a tween.
struct CurveTiming {
  std::string_view name;
  TovEasingBlock easing;
};
[[nodiscard]] std::span<const CurveTiming> curveTimings();

/// The animation between two values. Stops when there is no such timing.
[[nodiscard]] std::shared_ptr<TovAnimation> curveAnimation(const CurveSettings& settings,
                                                           NSValue from, NSValue to);

/// The frames of the way from 0 to 1.
[[nodiscard]] std::vector<double> curveFrames(const CurveSettings& settings);

/// What there is to say about the motion, in words.
[[nodiscard]] std::string curveCharacter(const CurveSettings& settings);

}  // namespace kindora
