// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/MotionEffects.h"

#include <algorithm>
#include <utility>

#include "platform/services/MotionService.h"
#include "platform/services/ViewServices.h"
#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UIView.h"

namespace kindora {

MotionEffects& MotionEffects::shared() {
  static MotionEffects effects;  // main thread only
  return effects;
}

MotionEffects::~MotionEffects() {
  if (motion_) motion_->setTiltHandler({});
}

void MotionEffects::show(const UIViewRef& view) {
  const auto isIt = [&view](const auto& each) { return each.lock() == view; };
  if (std::ranges::any_of(views_, isIt)) return;
  views_.push_back(view);
  if (!motion_) {
    tilt_ = {};
    motion_ = viewServices().motion;
    motion_->setTiltHandler([this](double across, double down) { tilt(across, down); });
  } else if (tilt_ != CGPoint{}) {
    view->setTilt(tilt_.x, tilt_.y);
  }
}

void MotionEffects::hide(const UIViewRef& view) {
  const auto isIt = [&view](const auto& each) { return each.expired() || each.lock() == view; };
  const bool followed = std::ranges::any_of(views_, isIt);
  std::erase_if(views_, isIt);
  if (!followed) return;
  if (views_.empty()) {
    const std::shared_ptr<MotionService> motion = std::exchange(motion_, nullptr);
    motion->setTiltHandler({});
  }
  if (tilt_ != CGPoint{}) view->setTilt(0, 0);
}

void MotionEffects::tilt(double horizontal, double vertical) {
  tilt_ = theme::stillness() ? CGPoint{} : CGPoint{horizontal, vertical};
  // A view that is told may leave the screen, or bring another.
  const std::vector<std::weak_ptr<UIView>> views = views_;
  for (const auto& each : views) {
    if (const auto view = each.lock()) view->setTilt(tilt_.x, tilt_.y);
  }
}

}  // namespace kindora
