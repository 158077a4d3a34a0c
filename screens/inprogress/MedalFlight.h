// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// How a medal flies into a tab, and what it does there. In points, y downwards.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "effects/keyframes/CAKeyframeAnimation.h"
#include "platform/Geometry.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// The frame of a tab in the bar's space: the controls among the bar's subviews, from left to
/// right. A bar without controls leaves a line on the console and gives the zero rectangle. Stops
/// when there are some, but not that many.
[[nodiscard]] CGRect frameForTabInTabBar(const UIView& tabBar, int index);

/// Where a medal goes into a tab: the middle of the bottom edge.
[[nodiscard]] CGPoint medalDestination(const CGRect& tabFrame);

/// An arc: one quadratic curve, whose control point lies halfway in x, at the given y.
[[nodiscard]] std::shared_ptr<UIBezierPath> bezierPathForFlyFromPoint(CGPoint from, CGPoint to,
                                                                      double peakHeight);

/// One second along that arc, gaining speed, and staying at its end. Without key path or delegate.
[[nodiscard]] std::shared_ptr<CAKeyframeAnimation> animationForFlyFromPoint(CGPoint from,
                                                                            CGPoint to,
                                                                            double peakHeight);

/// The text in a tab's bubble after one more badge: one more than the decimal integer that the
/// whole text is, else "1". An integer has an optional sign and fits 64 bits.
[[nodiscard]] std::string raisedBadgeValue(const std::optional<std::string_view>& value);

}  // namespace kindora
