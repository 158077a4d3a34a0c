// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PressedLook.h"

#include "platform/UIColor.h"
#include "platform/UIImageColorOverlay.h"

namespace kindora {

UIImageRef pressedPicture(const UIImageRef& picture, bool isPressed) {
  constexpr double kDarkening = 0.25;  // alpha of the black over it
  if (!isPressed || !picture) return picture;
  return imageWithColorOverlay(picture, UIColor::blackColor().colorWithAlphaComponent(kDarkening));
}

void sinkFrame(UIView& frame, bool isPressed) {
  frame.setShadowOpacity(isPressed ? 0.25 : 0.5);
  frame.setTranslation({0, isPressed ? 2.5 : 0});
}

}  // namespace kindora
