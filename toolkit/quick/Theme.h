// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "toolkit/controllers/Colors.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {

/// The theme's values for QML.
class Theme : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QColor surround READ surround CONSTANT)
  Q_PROPERTY(QColor ground READ ground CONSTANT)
  Q_PROPERTY(QColor card READ card CONSTANT)
  Q_PROPERTY(QColor raised READ raised CONSTANT)
  Q_PROPERTY(QColor pressed READ pressed CONSTANT)
  Q_PROPERTY(QColor well READ well CONSTANT)
  Q_PROPERTY(QColor track READ track CONSTANT)
  Q_PROPERTY(QColor pictureGround READ pictureGround CONSTANT)
  Q_PROPERTY(QColor darkGround READ darkGround CONSTANT)
  Q_PROPERTY(QColor dim READ dim CONSTANT)
  Q_PROPERTY(QColor hairline READ hairline CONSTANT)
  Q_PROPERTY(QColor cardBorder READ cardBorder CONSTANT)
  Q_PROPERTY(QColor controlBorder READ controlBorder CONSTANT)
  Q_PROPERTY(QColor gridLine READ gridLine CONSTANT)
  Q_PROPERTY(QColor scrollIndicator READ scrollIndicator CONSTANT)
  Q_PROPERTY(QColor ink READ ink CONSTANT)
  Q_PROPERTY(QColor softInk READ softInk CONSTANT)
  Q_PROPERTY(QColor faintInk READ faintInk CONSTANT)
  Q_PROPERTY(QColor glyph READ glyph CONSTANT)
  Q_PROPERTY(QColor faintGlyph READ faintGlyph CONSTANT)
  Q_PROPERTY(QColor inkOnColor READ inkOnColor CONSTANT)
  Q_PROPERTY(QColor danger READ danger CONSTANT)
  Q_PROPERTY(QColor dangerPressed READ dangerPressed CONSTANT)
  Q_PROPERTY(QColor badge READ badge CONSTANT)
  Q_PROPERTY(double panelRadius READ panelRadius CONSTANT)
  Q_PROPERTY(double tileRadius READ tileRadius CONSTANT)
  Q_PROPERTY(double cardRadius READ cardRadius CONSTANT)
  Q_PROPERTY(int pressDuration READ pressDuration CONSTANT)
  Q_PROPERTY(int quickDuration READ quickDuration CONSTANT)
  Q_PROPERTY(int fadeDuration READ fadeDuration CONSTANT)
  Q_PROPERTY(int moveDuration READ moveDuration CONSTANT)

 public:
  using QObject::QObject;

  [[nodiscard]] static QColor surround() { return toQColor(theme::kSurround); }
  [[nodiscard]] static QColor ground() { return toQColor(theme::kGround); }
  [[nodiscard]] static QColor card() { return toQColor(theme::kCard); }
  [[nodiscard]] static QColor raised() { return toQColor(theme::kRaised); }
  [[nodiscard]] static QColor pressed() { return toQColor(theme::kPressed); }
  [[nodiscard]] static QColor well() { return toQColor(theme::kWell); }
  [[nodiscard]] static QColor track() { return toQColor(theme::kTrack); }
  [[nodiscard]] static QColor pictureGround() { return toQColor(theme::kPictureGround); }
  [[nodiscard]] static QColor darkGround() { return toQColor(theme::kDarkGround); }
  [[nodiscard]] static QColor dim() { return toQColor(theme::kDim); }
  [[nodiscard]] static QColor hairline() { return toQColor(theme::kHairline); }
  [[nodiscard]] static QColor cardBorder() { return toQColor(theme::kCardBorder); }
  [[nodiscard]] static QColor controlBorder() { return toQColor(theme::kControlBorder); }
  [[nodiscard]] static QColor gridLine() { return toQColor(theme::kGridLine); }
  [[nodiscard]] static QColor scrollIndicator() { return toQColor(theme::kScrollIndicator); }
  [[nodiscard]] static QColor ink() { return toQColor(theme::kInk); }
  [[nodiscard]] static QColor softInk() { return toQColor(theme::kSoftInk); }
  [[nodiscard]] static QColor faintInk() { return toQColor(theme::kFaintInk); }
  [[nodiscard]] static QColor glyph() { return toQColor(theme::kGlyph); }
  [[nodiscard]] static QColor faintGlyph() { return toQColor(theme::kFaintGlyph); }
  [[nodiscard]] static QColor inkOnColor() { return toQColor(theme::kInkOnColor); }
  [[nodiscard]] static QColor danger() { return toQColor(theme::kDanger); }
  [[nodiscard]] static QColor dangerPressed() { return toQColor(theme::kDangerPressed); }
  [[nodiscard]] static QColor badge() { return toQColor(theme::kBadge); }
  [[nodiscard]] static double panelRadius() { return theme::kPanelRadius; }
  [[nodiscard]] static double tileRadius() { return theme::kTileRadius; }
  [[nodiscard]] static double cardRadius() { return theme::kCardRadius; }
  [[nodiscard]] static int pressDuration() { return theme::kPressDuration; }
  [[nodiscard]] static int quickDuration() { return theme::kQuickDuration; }
  [[nodiscard]] static int fadeDuration() { return theme::kFadeDuration; }
  [[nodiscard]] static int moveDuration() { return theme::kMoveDuration; }
};

}  // namespace kindora
