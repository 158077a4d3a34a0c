// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewControllerTransitionCoordinator.h"

#include <utility>

#include "toolkit/controllers/UIViewAnimation.h"

namespace kindora {

UIViewControllerTransitionCoordinator::UIViewControllerTransitionCoordinator(double duration,
                                                                             bool animated)
    : duration_(duration), animated_(animated) {}

void UIViewControllerTransitionCoordinator::animateAlongsideTransition(Closure animations,
                                                                       Closure completion) {
  if (completion) completions_.push_back(std::move(completion));
  if (!animations) return;
  if (begun_) {
    run(animations);
  } else {
    animations_.push_back(std::move(animations));
  }
}

void UIViewControllerTransitionCoordinator::begin() {
  begun_ = true;
  const std::vector<Closure> animations = std::exchange(animations_, {});
  if (animations.empty()) return;
  run([&animations] {
    for (const Closure& closure : animations) closure();
  });
}

void UIViewControllerTransitionCoordinator::end() {
  for (const Closure& completion : std::exchange(completions_, {})) completion();
}

void UIViewControllerTransitionCoordinator::run(const Closure& animations) const {
  if (animated_) {
    animateWithDuration({.duration = duration_}, animations);
  } else {
    animations();
  }
}

}  // namespace kindora
