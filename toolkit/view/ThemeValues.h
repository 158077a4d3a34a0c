// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"

/// The interface's colours and measures by what they are for, the same for records and for QML. The
/// app colour is no part of it; a window has that as its tint.
namespace kindora::theme {

// What things stand on.
inline constexpr UIColor kSurround = UIColor::colorWithWhite(0.9, 1);  ///< beside the app
inline constexpr UIColor kGround = UIColor::colorWithWhite(0.96, 1);
inline constexpr UIColor kCard = UIColor::whiteColor();
inline constexpr UIColor kRaised = UIColor::colorWithWhite(0.985, 1);  ///< bars, alerts, sheets
inline constexpr UIColor kPressed = UIColor::colorWithWhite(0.92, 1);
inline constexpr UIColor kWell = UIColor::colorWithWhite(0.92, 1);  ///< something is put into it
inline constexpr UIColor kTrack = UIColor::colorWithWhite(0.88, 1);
inline constexpr UIColor kPictureGround = UIColor::colorWithWhite(0.88, 1);
inline constexpr UIColor kDarkGround = UIColor::colorWithWhite(0.1, 1);  ///< around photos
inline constexpr UIColor kDim = UIColor::blackColor();  ///< over what is not to be used now

// Lines.
inline constexpr UIColor kHairline = UIColor::colorWithWhite(0.88, 1);
inline constexpr UIColor kCardBorder = UIColor::colorWithWhite(0.92, 1);
inline constexpr UIColor kControlBorder = UIColor::colorWithWhite(0.86, 1);
inline constexpr UIColor kGridLine{0.05, 0.25, 0.5, 1};  ///< over a picture
inline constexpr UIColor kScrollIndicator = UIColor::colorWithWhite(0, 0.35);

// Texts and glyphs.
inline constexpr UIColor kInk = UIColor::colorWithWhite(0.13, 1);
inline constexpr UIColor kSoftInk = UIColor::colorWithWhite(0.45, 1);
inline constexpr UIColor kFaintInk = UIColor::colorWithWhite(0.6, 1);  ///< placeholders, disabled
inline constexpr UIColor kGlyph = UIColor::colorWithWhite(0.5, 1);
inline constexpr UIColor kFaintGlyph = UIColor::colorWithWhite(0.75, 1);
inline constexpr UIColor kInkOnColor =
    UIColor::whiteColor();  ///< on the tint, on what is red or dark

// What warns and counts.
inline constexpr UIColor kDanger{0.82, 0.01, 0.11, 1};
inline constexpr UIColor kDangerPressed{0.68, 0.01, 0.09, 1};
inline constexpr UIColor kBadge{0.9, 0.16, 0.2, 1};

// Corners, in points.
inline constexpr double kPanelRadius = 14;
inline constexpr double kTileRadius = 16;
inline constexpr double kCardRadius = 20;

// Motion, in milliseconds.
inline constexpr int kPressDuration = 80;
inline constexpr int kQuickDuration = 150;
inline constexpr int kFadeDuration = 200;
inline constexpr int kMoveDuration = 300;

}  // namespace kindora::theme
