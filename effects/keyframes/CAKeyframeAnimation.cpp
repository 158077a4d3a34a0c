// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/CAKeyframeAnimation.h"

#include <utility>

namespace kindora {

void CAKeyframeAnimation::setKeyPath(std::optional<std::string> keyPath) {
  change(keyPath_, std::move(keyPath), "keyPath");
}

void CAKeyframeAnimation::setDuration(double seconds) { change(duration_, seconds, kDurationKey); }

void CAKeyframeAnimation::setValues(NSArrayRef values) {
  change(values_, std::move(values), kValuesKey);
}

void CAKeyframeAnimation::setPath(std::shared_ptr<const UIBezierPath> path) {
  change(path_, std::move(path), "path");
}

void CAKeyframeAnimation::setFillMode(CAMediaTimingFillMode mode) {
  change(fillMode_, mode, "fillMode");
}

void CAKeyframeAnimation::setRemovedOnCompletion(bool removed) {
  change(removedOnCompletion_, removed, "removedOnCompletion");
}

void CAKeyframeAnimation::setRepeatCount(double count) {
  change(repeatCount_, count, "repeatCount");
}

void CAKeyframeAnimation::setCalculationMode(CAAnimationCalculationMode mode) {
  change(calculationMode_, mode, "calculationMode");
}

void CAKeyframeAnimation::setTimingFunction(std::optional<CAMediaTimingFunction> function) {
  change(timingFunction_, function, "timingFunction");
}

void CAKeyframeAnimation::setDelegate(std::weak_ptr<CAAnimationDelegate> delegate) {
  change(delegate_, std::move(delegate), "delegate");
}

std::shared_ptr<CAKeyframeAnimation> CAKeyframeAnimation::copy() const {
  return std::shared_ptr<CAKeyframeAnimation>(new CAKeyframeAnimation(*this));
}

}  // namespace kindora
