// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "platform/Geometry.h"
#include "toolkit/view/UIViewRef.h"

namespace kindora {

class MotionService;

/// Gives the phone's tilt to the views on the screen that have motion effects. The sensor rests
/// while there is none. Main thread only.
class MotionEffects final {
 public:
  /// The one that draws the app's views.
  [[nodiscard]] static MotionEffects& shared();

  MotionEffects() = default;
  ~MotionEffects();
  MotionEffects(const MotionEffects&) = delete;
  MotionEffects& operator=(const MotionEffects&) = delete;

  /// The view came onto the screen and is to follow the tilt. Does nothing when it does already.
  void show(const UIViewRef& view);
  /// The view left the screen; it shows no tilt any more.
  void hide(const UIViewRef& view);

 private:
  void tilt(double horizontal, double vertical);

  std::vector<std::weak_ptr<UIView>> views_;
  std::shared_ptr<MotionService> motion_;  // while there are views
  CGPoint tilt_;
};

}  // namespace kindora
