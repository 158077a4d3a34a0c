// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/view/UIView.h"

namespace kindora {

class UIViewController;

enum class UITransitionContextViewControllerKey { from, to };

/// What an animator needs to know of the transition that it is to show.
class UIViewControllerContextTransitioning {
 public:
  virtual ~UIViewControllerContextTransitioning() = default;
  /// What holds all views that take part. The animator puts the arriving view into it.
  [[nodiscard]] virtual UIViewRef containerView() const = 0;
  /// The controller that goes out of the foreground, or the one that comes into it.
  [[nodiscard]] virtual UIViewController* viewControllerForKey(
      UITransitionContextViewControllerKey key) const = 0;
  /// Where the controller's view is to end, in the container's space.
  [[nodiscard]] virtual CGRect finalFrameForViewController(
      const UIViewController& controller) const = 0;
  /// To be called by the animator at its end; false gives the transition up. Later calls, and any
  /// call after the transition was ended by somebody else, do nothing.
  virtual void completeTransition(bool didComplete) = 0;
};

using UITransitionContextRef = std::shared_ptr<UIViewControllerContextTransitioning>;

}  // namespace kindora
