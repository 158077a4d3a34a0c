// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include "platform/CATransform3D.h"
#include "platform/Geometry.h"

namespace kindora {

/// An animation that plays on a view for as long as the view keeps it.
class UIViewLayerAnimation {
 public:
  virtual ~UIViewLayerAnimation() = default;
};

/// What a keyframe animation shows in place of the state while it is attached.
struct UIViewKeyframeValues {
  std::optional<double> opacity;
  std::optional<CGPoint> position;         ///< of the centre, in the superview's space
  std::optional<CATransform3D> transform;  ///< about the centre
  friend constexpr bool operator==(const UIViewKeyframeValues&,
                                   const UIViewKeyframeValues&) = default;
};

}  // namespace kindora
