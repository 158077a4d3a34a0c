// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"
#include "platform/UIColor.h"

namespace kindora {

/// Everything about a view that an animation can move.
struct UIViewState {
  CGRect frame;  ///< in the superview's space, before the transform
  double alpha = 1;
  UIColor backgroundColor = UIColor::clearColor();
  CGPoint translation;  ///< transform: points by which the view is displaced
  double scaling = 1;   ///< transform: factor about the view's centre
  double cornerRadius = 0;
  double shadowOpacity = 0;
  CGSize shadowOffset{0, -3};
  double curl = 1;    ///< how far it is laid over what lies below, like a page: 0 to 1
  double layout = 0;  ///< how many changes of its constraints it has laid out since the first
  friend constexpr bool operator==(const UIViewState&, const UIViewState&) = default;
};

/// The state between two states, at fraction 0 the first and at 1 the second, not clamped.
[[nodiscard]] UIViewState interpolated(const UIViewState& from, const UIViewState& to,
                                       double fraction);

}  // namespace kindora
