// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Animations on Qt's animation clock.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "toolkit/view/SpringTiming.h"
#include "toolkit/view/UIView.h"

class QAbstractAnimation;

namespace kindora {

enum class UIViewAnimationCurve { easeInOut, easeIn, easeOut, linear };

struct UIViewAnimationTiming {
  double duration = 0;  ///< seconds
  double delay = 0;     ///< seconds before the first change is shown
  UIViewAnimationCurve curve = UIViewAnimationCurve::easeInOut;
  std::optional<UISpring> spring = std::nullopt;  ///< takes the curve's place
};

/// Runs the closure now and shows its changes to views over time, beginning from what they show at
/// the moment. The completion runs once, when the last step has been shown.
void animateWithDuration(const UIViewAnimationTiming& timing,
                         const std::function<void()>& animations,
                         std::function<void()> completion = {});

/// Lays a view over another like a page that curls down, and takes the other out of their superview
/// at the end.
void transitionFromView(const UIViewRef& from, const UIViewRef& to, double duration,
                        std::function<void()> completion = {});

/// A number on its way from 0 to 1 (eased), for what is no view. Stops when the handle goes.
class ProgressAnimation {
 public:
  ProgressAnimation() = default;
  /// Calls step with the fraction at each frame and at last with 1, then the completion, which
  /// never runs inside this call.
  ProgressAnimation(const UIViewAnimationTiming& timing, std::function<void(double)> step,
                    std::function<void()> completion);
  ProgressAnimation(ProgressAnimation&& other) noexcept;
  ProgressAnimation& operator=(ProgressAnimation&& other) noexcept;
  ~ProgressAnimation();

 private:
  QAbstractAnimation* clock_ = nullptr;
};

}  // namespace kindora
