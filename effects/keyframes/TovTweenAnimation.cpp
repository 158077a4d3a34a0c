// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovTweenAnimation.h"

#include <utility>

#include "effects/keyframes/TovKeys.h"
#include "effects/keyframes/TovMakeInterpolator.h"
#include "platform/FatalError.h"

namespace kindora {
namespace {

constexpr std::string_view kEasingKey = "easing";

}  // namespace

void TovTweenAnimation::setFromValue(NSValue value) {
  change(fromValue_, std::move(value), kTovFromValueKey);
}

void TovTweenAnimation::setToValue(NSValue value) {
  change(toValue_, std::move(value), kTovToValueKey);
}

void TovTweenAnimation::setEasing(TovEasingBlock easing) {
  change(easing_, std::move(easing), kEasingKey);
}

TovAnimationBlock TovTweenAnimation::animationBlock() const {
  if (!easing_) fatalError("a tween needs an easing");
  return [easing = easing_, interpolator = TovMakeInterpolator(fromValue_, toValue_)](
             double t, double duration) { return interpolator(easing(t / duration)); };
}

KeyValueObserving::Keys TovTweenAnimation::keyPathsForValuesAffectingValueForKey(
    std::string_view key) const {
  if (key == kTovAnimationBlockKey) return {kTovFromKey, kTovToKey, kEasingKey};
  return TovAnimation::keyPathsForValuesAffectingValueForKey(key);
}

std::shared_ptr<CAKeyframeAnimation> TovTweenAnimation::copy() const {
  return std::shared_ptr<CAKeyframeAnimation>(new TovTweenAnimation(*this));
}

}  // namespace kindora
