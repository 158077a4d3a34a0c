// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavParallax.h"

namespace kindora {

void qav_addParallax(UIView& view, UIOffset offset) {
  view.addMotionEffect({{{.keyPath = "center.x",
                          .type = UIInterpolatingMotionEffectType::tiltAlongHorizontalAxis,
                          .minimumRelativeValue = -offset.horizontal,
                          .maximumRelativeValue = offset.horizontal},
                         {.keyPath = "center.y",
                          .type = UIInterpolatingMotionEffectType::tiltAlongVerticalAxis,
                          .minimumRelativeValue = -offset.vertical,
                          .maximumRelativeValue = offset.vertical}}});
}

}  // namespace kindora
