// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "effects/keyframes/TovAnimation.h"

namespace kindora {

/// An animation whose function of time the caller gives.
class TovCustomAnimation final : public TovAnimation {
 public:
  TovCustomAnimation() = default;

  [[nodiscard]] TovAnimationBlock animationBlock() const override { return animationBlock_; }
  void setAnimationBlock(TovAnimationBlock block);

  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> copy() const override;

 private:
  TovCustomAnimation(const TovCustomAnimation&) = default;

  TovAnimationBlock animationBlock_;
};

}  // namespace kindora
