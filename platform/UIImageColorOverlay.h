// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"
#include "platform/UIImage.h"

namespace kindora {

/// A new image of the same size and scale: the picture with the colour drawn over the whole of its
/// rectangle, transparent parts included. Drawn on first need, at the size that is needed. Stops
/// when the image has no pixels.
[[nodiscard]] UIImageRef imageWithColorOverlay(const UIImageRef& image, UIColor color);

}  // namespace kindora
