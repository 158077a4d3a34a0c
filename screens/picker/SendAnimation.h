// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "platform/Subscription.h"
#include "platform/UIImage.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// What is seen when a challenge is sent: its card comes up over the whole app, is wrapped in its
/// cover again and flies away. 4.95 seconds, in steps of which each starts when the one before has
/// ended. Nothing below takes input meanwhile.
class SendAnimation final : public std::enable_shared_from_this<SendAnimation> {
 public:
  /// Plays over the view, then calls the completion.
  static void run(const UIViewRef& over, const UIImageRef& picture,
                  std::function<void()> completion);

 private:
  explicit SendAnimation(std::function<void()> completion);

  void build(UIView& over, const UIImageRef& picture);
  void settle();
  void wrap();
  void pack();
  void gatherWay();
  void flyAway();
  void end();

  UIViewRef overlay_;
  UIViewRef stage_;  // in the overlay's middle
  UIViewRef card_;
  UIViewRef container_;
  UIViewRef picture_;
  std::function<void()> completion_;
  Subscription overlayChanged_;
};

}  // namespace kindora
