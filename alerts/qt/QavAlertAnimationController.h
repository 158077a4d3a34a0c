// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIViewControllerAnimatedTransitioning.h"

namespace kindora {

/// Shows how an alert comes, out of a slightly larger one that is not there yet, and how it fades.
class QavAlertAnimationController final : public UIViewControllerAnimatedTransitioning {
 public:
  explicit QavAlertAnimationController(bool presentation) : presentation_(presentation) {}

  /// Whether the alert comes; it goes otherwise.
  [[nodiscard]] bool presentation() const { return presentation_; }

  [[nodiscard]] double transitionDuration(const UITransitionContextRef& context) const override;
  void animateTransition(const UITransitionContextRef& context) override;

 private:
  void animate(const std::function<void()>& animations, const UITransitionContextRef& inContext,
               std::function<void(bool finished)> withCompletion) const;

  bool presentation_;
};

}  // namespace kindora
