// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "alerts/helpers/QavAutoLayout.h"
#include "toolkit/view/UIMotionEffect.h"

namespace kindora {

/// Lets the view float with the phone's tilt, by at most that many points to each side.
void qav_addParallax(UIView& view, UIOffset offset);

}  // namespace kindora
