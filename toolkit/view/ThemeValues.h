// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"
#include "toolkit/view/Palette.h"

/// The interface's colours and measures by what they are for, the same for records and for QML.
namespace kindora::theme {

/// A colour of whatever palette is in force when it is drawn.
template <UIColor Palette::*role>
[[nodiscard]] constexpr UIColor dynamicColor() {
  return UIColor::dynamicColor([] { return palette().*role; });
}
inline constexpr UIColor kCard = dynamicColor<&Palette::card>();
inline constexpr UIColor kPictureGround = dynamicColor<&Palette::pictureGround>();
inline constexpr UIColor kInk = dynamicColor<&Palette::ink>();
inline constexpr UIColor kFaintInk = dynamicColor<&Palette::faintInk>();
inline constexpr UIColor kDanger = dynamicColor<&Palette::danger>();

/// What a text is drawn in: black, in which texts are before anybody chooses, is the ink.
[[nodiscard]] constexpr UIColor drawnText(const UIColor& color) {
  return color == UIColor::blackColor() ? kInk : color;
}
/// What a ground is drawn in: white, however opaque, is that of a card.
[[nodiscard]] constexpr UIColor drawnGround(const UIColor& color) {
  return color.colorWithAlphaComponent(1) == UIColor::whiteColor()
             ? kCard.colorWithAlphaComponent(color.alpha)
             : color;
}
/// The tint as small texts need it to be readable: darker than the tint itself, or on dark grounds
/// lighter.
[[nodiscard]] UIColor tintedText(const UIColor& tint);

// Corners, in points.
inline constexpr double kPanelRadius = 14;
inline constexpr double kTileRadius = 16;
inline constexpr double kCardRadius = 20;

// Sizes of texts, in points, before the user's own scale.
inline constexpr double kCaptionSize = 12;
inline constexpr double kFootnoteSize = 13;
inline constexpr double kSubheadlineSize = 15;
inline constexpr double kCalloutSize = 16;
inline constexpr double kBodySize = 17;
inline constexpr double kTitle3Size = 19;
inline constexpr double kTitle2Size = 22;
inline constexpr double kTitle1Size = 24;

// Motion, in milliseconds. What fades or is tinted lasts where motion is reduced, too; what moves,
// grows or turns does not (see stillness).
inline constexpr int kPressDuration = 80;
inline constexpr int kQuickDuration = 120;
inline constexpr int kFadeDuration = 200;
inline constexpr int kSlideDuration = 220;
inline constexpr int kMoveDuration = 260;

/// Whether the user wants what decorates to stand still: springs do not overshoot, pages and sheets
/// fade in instead of sliding, nothing follows the phone's tilt, and what moves for its looks alone
/// is where it belongs at once. Delays, and what tells something by moving, stay as they are.
[[nodiscard]] bool stillness();

}  // namespace kindora::theme
