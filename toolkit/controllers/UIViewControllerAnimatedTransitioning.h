// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIViewControllerContextTransitioning.h"

namespace kindora {

/// Shows how a controller comes or goes.
class UIViewControllerAnimatedTransitioning {
 public:
  virtual ~UIViewControllerAnimatedTransitioning() = default;
  /// Seconds. The context may be null.
  [[nodiscard]] virtual double transitionDuration(const UITransitionContextRef& context) const = 0;
  /// Begins the animation and calls completeTransition at its end.
  virtual void animateTransition(const UITransitionContextRef& context) = 0;
};

}  // namespace kindora
