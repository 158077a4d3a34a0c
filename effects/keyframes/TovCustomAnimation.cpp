// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovCustomAnimation.h"

#include <utility>

#include "effects/keyframes/TovKeys.h"

namespace kindora {

void TovCustomAnimation::setAnimationBlock(TovAnimationBlock block) {
  change(animationBlock_, std::move(block), kTovAnimationBlockKey);
}

std::shared_ptr<CAKeyframeAnimation> TovCustomAnimation::copy() const {
  return std::shared_ptr<CAKeyframeAnimation>(new TovCustomAnimation(*this));
}

}  // namespace kindora
