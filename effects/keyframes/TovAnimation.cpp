// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovAnimation.h"

#include <utility>

#include "effects/keyframes/TovBlockBasedArray.h"
#include "effects/keyframes/TovKeys.h"

namespace kindora {
namespace {

constexpr double kFramesPerSecond = 60;

std::size_t frameCount(double duration) {
  constexpr double kTooMany = 18446744073709551616.0;  // 2^64
  const double frames = duration * kFramesPerSecond;
  return frames > 0 && frames < kTooMany ? static_cast<std::size_t>(frames) : 0;
}

}  // namespace

NSArrayRef TovAnimation::values() const {
  const double seconds = duration();
  TovElementBlock element;
  if (TovAnimationBlock block = animationBlock()) {
    element = [block = std::move(block), seconds](std::size_t index) {
      return block(static_cast<double>(index) / kFramesPerSecond, seconds);
    };
  }
  return TovBlockBasedArray::arrayWithCount(frameCount(seconds), std::move(element));
}

void TovAnimation::setValues(NSArrayRef /*values*/) {}

KeyValueObserving::Keys TovAnimation::keyPathsForValuesAffectingValueForKey(
    std::string_view key) const {
  if (key == kValuesKey) return {kTovAnimationBlockKey, kDurationKey};
  return CAKeyframeAnimation::keyPathsForValuesAffectingValueForKey(key);
}

std::shared_ptr<CAKeyframeAnimation> TovAnimation::copy() const {
  return std::shared_ptr<CAKeyframeAnimation>(new TovAnimation(*this));
}

}  // namespace kindora
