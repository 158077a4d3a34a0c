// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <vector>

namespace kindora {

/// Lets others move along with a transition, for as long as that lasts.
class UIViewControllerTransitionCoordinator {
 public:
  using Closure = std::function<void()>;

  /// Without animation the closures run with no time between.
  UIViewControllerTransitionCoordinator(double duration, bool animated);

  /// Shows the changes of the first closure over the duration of the transition, from its beginning
  /// on, or from now on when it has begun. The completion runs at the end of the transition.
  void animateAlongsideTransition(Closure animations, Closure completion = {});
  [[nodiscard]] double transitionDuration() const { return duration_; }
  [[nodiscard]] bool isAnimated() const { return animated_; }

  /// For whoever runs the transition.
  void begin();
  void end();

 private:
  void run(const Closure& animations) const;

  double duration_;
  bool animated_;
  bool begun_ = false;
  std::vector<Closure> animations_;
  std::vector<Closure> completions_;
};

}  // namespace kindora
