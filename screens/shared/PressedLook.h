// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// How a picture in a shadowed frame shows that it is pressed: darkened, and sunk onto its shadow.
#pragma once

#include "platform/UIImage.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// The picture as it shows while pressed, or the picture itself; none for no picture.
[[nodiscard]] UIImageRef pressedPicture(const UIImageRef& picture, bool isPressed);

/// Where the frame lies, and how strong its shadow is.
void sinkFrame(UIView& frame, bool isPressed);

}  // namespace kindora
