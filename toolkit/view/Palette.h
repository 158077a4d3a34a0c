// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"
#include "platform/services/SystemLooks.h"

namespace kindora {

/// The interface's colours by what they are for. The app colour is no part of it; a window has that
/// as its tint.
struct Palette {
  // What things stand on.
  UIColor surround;  ///< beside the app
  UIColor ground;
  UIColor card;
  UIColor raised;  ///< bars, alerts, sheets
  UIColor pressed;
  UIColor well;  ///< something is put into it
  UIColor track;
  UIColor pictureGround;
  UIColor darkGround;  ///< around photos
  UIColor dim;         ///< over what is not to be used now

  // Lines.
  UIColor hairline;
  UIColor cardBorder;
  UIColor controlBorder;
  UIColor gridLine;  ///< over a picture
  UIColor scrollIndicator;

  // Texts and glyphs.
  UIColor ink;
  UIColor softInk;
  UIColor faintInk;  ///< disabled
  UIColor glyph;
  UIColor faintGlyph;  ///< says nothing that is not said beside it
  UIColor inkOnTint;
  UIColor inkOnDanger;
  UIColor inkOnDark;

  // What warns and counts.
  UIColor danger;
  UIColor dangerPressed;

  double borderWidth = 1;  ///< of cards and controls, in points
};

namespace theme {

extern const Palette kLight;
extern const Palette kDark;
extern const Palette kLightContrast;
extern const Palette kDarkContrast;

/// What the system says, and the default before there are view services.
[[nodiscard]] Looks looks();

[[nodiscard]] const Palette& paletteFor(const Looks& looks);
/// The one in force.
[[nodiscard]] const Palette& palette();

}  // namespace theme
}  // namespace kindora
