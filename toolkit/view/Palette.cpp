// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/Palette.h"

#include "platform/services/ViewServices.h"

namespace kindora::theme {
namespace {

constexpr UIColor rgb(int red, int green, int blue, double alpha = 1) {
  return {red / 255.0, green / 255.0, blue / 255.0, alpha};
}

constexpr UIColor kGridLine = rgb(13, 64, 128);

}  // namespace

constexpr Palette kLight{.surround = rgb(231, 234, 227),
                         .ground = rgb(243, 245, 240),
                         .card = rgb(255, 255, 255),
                         .raised = rgb(250, 251, 249),
                         .pressed = rgb(235, 238, 231),
                         .well = rgb(235, 238, 231),
                         .track = rgb(222, 226, 218),
                         .pictureGround = rgb(224, 228, 220),
                         .darkGround = rgb(26, 26, 26),
                         .dim = rgb(0, 0, 0),
                         .hairline = rgb(30, 36, 28, 0.10),
                         .cardBorder = rgb(30, 36, 28, 0.07),
                         .controlBorder = rgb(30, 36, 28, 0.14),
                         .gridLine = kGridLine,
                         .scrollIndicator = rgb(30, 36, 28, 0.35),
                         .ink = rgb(30, 36, 28),
                         .softInk = rgb(92, 102, 88),
                         .faintInk = rgb(150, 158, 146),
                         .glyph = rgb(104, 114, 100),
                         .faintGlyph = rgb(186, 193, 182),
                         .inkOnTint = rgb(16, 36, 10),
                         .inkOnDanger = rgb(255, 255, 255),
                         .inkOnDark = rgb(255, 255, 255),
                         .danger = rgb(209, 3, 28),
                         .dangerPressed = rgb(173, 3, 23)};

constexpr Palette kDark{.surround = rgb(8, 10, 8),
                        .ground = rgb(16, 19, 16),
                        .card = rgb(28, 32, 28),
                        .raised = rgb(34, 39, 34),
                        .pressed = rgb(44, 50, 44),
                        .well = rgb(44, 50, 44),
                        .track = rgb(62, 70, 61),
                        .pictureGround = rgb(44, 50, 44),
                        .darkGround = rgb(10, 12, 10),
                        .dim = rgb(0, 0, 0),
                        .hairline = rgb(236, 240, 234, 0.14),
                        .cardBorder = rgb(236, 240, 234, 0.08),
                        .controlBorder = rgb(236, 240, 234, 0.20),
                        .gridLine = kGridLine,
                        .scrollIndicator = rgb(236, 240, 234, 0.40),
                        .ink = rgb(236, 240, 234),
                        .softInk = rgb(160, 170, 156),
                        .faintInk = rgb(112, 121, 108),
                        .glyph = rgb(150, 160, 146),
                        .faintGlyph = rgb(92, 101, 88),
                        .inkOnTint = rgb(16, 36, 10),
                        .inkOnDanger = rgb(36, 4, 4),
                        .inkOnDark = rgb(255, 255, 255),
                        .danger = rgb(255, 107, 107),
                        .dangerPressed = rgb(224, 90, 90)};

constexpr Palette kLightContrast{.surround = rgb(214, 218, 210),
                                 .ground = rgb(255, 255, 255),
                                 .card = rgb(255, 255, 255),
                                 .raised = rgb(255, 255, 255),
                                 .pressed = rgb(230, 233, 227),
                                 .well = rgb(240, 242, 238),
                                 .track = rgb(160, 168, 156),
                                 .pictureGround = rgb(224, 228, 220),
                                 .darkGround = rgb(0, 0, 0),
                                 .dim = rgb(0, 0, 0),
                                 .hairline = rgb(0, 0, 0, 0.6),
                                 .cardBorder = rgb(0, 0, 0),
                                 .controlBorder = rgb(0, 0, 0),
                                 .gridLine = kGridLine,
                                 .scrollIndicator = rgb(0, 0, 0, 0.7),
                                 .ink = rgb(0, 0, 0),
                                 .softInk = rgb(52, 58, 50),
                                 .faintInk = rgb(96, 104, 92),
                                 .glyph = rgb(66, 73, 63),
                                 .faintGlyph = rgb(96, 104, 92),
                                 .inkOnTint = rgb(0, 0, 0),
                                 .inkOnDanger = rgb(255, 255, 255),
                                 .inkOnDark = rgb(255, 255, 255),
                                 .danger = rgb(150, 0, 20),
                                 .dangerPressed = rgb(120, 0, 16),
                                 .borderWidth = 2};

constexpr Palette kDarkContrast{.surround = rgb(24, 28, 24),
                                .ground = rgb(0, 0, 0),
                                .card = rgb(0, 0, 0),
                                .raised = rgb(12, 14, 12),
                                .pressed = rgb(32, 36, 32),
                                .well = rgb(24, 28, 24),
                                .track = rgb(96, 104, 92),
                                .pictureGround = rgb(44, 50, 44),
                                .darkGround = rgb(0, 0, 0),
                                .dim = rgb(0, 0, 0),
                                .hairline = rgb(255, 255, 255, 0.6),
                                .cardBorder = rgb(255, 255, 255),
                                .controlBorder = rgb(255, 255, 255),
                                .gridLine = kGridLine,
                                .scrollIndicator = rgb(255, 255, 255, 0.7),
                                .ink = rgb(255, 255, 255),
                                .softInk = rgb(214, 220, 210),
                                .faintInk = rgb(160, 168, 156),
                                .glyph = rgb(200, 207, 196),
                                .faintGlyph = rgb(160, 168, 156),
                                .inkOnTint = rgb(0, 0, 0),
                                .inkOnDanger = rgb(0, 0, 0),
                                .inkOnDark = rgb(255, 255, 255),
                                .danger = rgb(255, 150, 150),
                                .dangerPressed = rgb(255, 180, 180),
                                .borderWidth = 2};

Looks looks() { return hasViewServices() ? viewServices().looks->looks() : Looks{}; }

const Palette& paletteFor(const Looks& looks) {
  if (looks.highContrast) return looks.dark ? kDarkContrast : kLightContrast;
  return looks.dark ? kDark : kLight;
}

const Palette& palette() { return paletteFor(looks()); }

}  // namespace kindora::theme
