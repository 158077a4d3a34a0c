// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "platform/Subscription.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {

/// The theme's values for QML, as the system's looks have them.
class Theme : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QColor surround READ surround NOTIFY looksChanged)
  Q_PROPERTY(QColor ground READ ground NOTIFY looksChanged)
  Q_PROPERTY(QColor card READ card NOTIFY looksChanged)
  Q_PROPERTY(QColor raised READ raised NOTIFY looksChanged)
  Q_PROPERTY(QColor pressed READ pressed NOTIFY looksChanged)
  Q_PROPERTY(QColor well READ well NOTIFY looksChanged)
  Q_PROPERTY(QColor track READ track NOTIFY looksChanged)
  Q_PROPERTY(QColor pictureGround READ pictureGround NOTIFY looksChanged)
  Q_PROPERTY(QColor darkGround READ darkGround NOTIFY looksChanged)
  Q_PROPERTY(QColor dim READ dim NOTIFY looksChanged)
  Q_PROPERTY(QColor hairline READ hairline NOTIFY looksChanged)
  Q_PROPERTY(QColor cardBorder READ cardBorder NOTIFY looksChanged)
  Q_PROPERTY(QColor controlBorder READ controlBorder NOTIFY looksChanged)
  Q_PROPERTY(QColor gridLine READ gridLine NOTIFY looksChanged)
  Q_PROPERTY(QColor scrollIndicator READ scrollIndicator NOTIFY looksChanged)
  Q_PROPERTY(QColor ink READ ink NOTIFY looksChanged)
  Q_PROPERTY(QColor softInk READ softInk NOTIFY looksChanged)
  Q_PROPERTY(QColor faintInk READ faintInk NOTIFY looksChanged)
  Q_PROPERTY(QColor glyph READ glyph NOTIFY looksChanged)
  Q_PROPERTY(QColor faintGlyph READ faintGlyph NOTIFY looksChanged)
  Q_PROPERTY(QColor inkOnTint READ inkOnTint NOTIFY looksChanged)
  Q_PROPERTY(QColor inkOnDanger READ inkOnDanger NOTIFY looksChanged)
  Q_PROPERTY(QColor inkOnDark READ inkOnDark NOTIFY looksChanged)
  Q_PROPERTY(QColor danger READ danger NOTIFY looksChanged)
  Q_PROPERTY(QColor dangerPressed READ dangerPressed NOTIFY looksChanged)
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY looksChanged)
  Q_PROPERTY(double panelRadius READ panelRadius CONSTANT)
  Q_PROPERTY(double tileRadius READ tileRadius CONSTANT)
  Q_PROPERTY(double cardRadius READ cardRadius CONSTANT)
  Q_PROPERTY(double captionSize READ captionSize CONSTANT)
  Q_PROPERTY(double footnoteSize READ footnoteSize CONSTANT)
  Q_PROPERTY(double subheadlineSize READ subheadlineSize CONSTANT)
  Q_PROPERTY(double calloutSize READ calloutSize CONSTANT)
  Q_PROPERTY(double bodySize READ bodySize CONSTANT)
  Q_PROPERTY(double title3Size READ title3Size CONSTANT)
  Q_PROPERTY(double title2Size READ title2Size CONSTANT)
  Q_PROPERTY(double title1Size READ title1Size CONSTANT)
  /// How much larger texts are than their sizes, which QML hands on to Appearance.
  Q_PROPERTY(double textScale READ textScale NOTIFY looksChanged)
  /// What moves for its looks alone stands still.
  Q_PROPERTY(bool stillness READ stillness NOTIFY looksChanged)
  // Of what moves, and 0 where it stands still.
  Q_PROPERTY(int pressDuration READ pressDuration NOTIFY looksChanged)
  Q_PROPERTY(int slideDuration READ slideDuration NOTIFY looksChanged)
  Q_PROPERTY(int moveDuration READ moveDuration NOTIFY looksChanged)
  // Of what fades.
  Q_PROPERTY(int quickDuration READ quickDuration CONSTANT)
  Q_PROPERTY(int fadeDuration READ fadeDuration CONSTANT)

 public:
  explicit Theme(QObject* parent = nullptr);

  [[nodiscard]] static QColor surround() { return toQColor(theme::palette().surround); }
  [[nodiscard]] static QColor ground() { return toQColor(theme::palette().ground); }
  [[nodiscard]] static QColor card() { return toQColor(theme::palette().card); }
  [[nodiscard]] static QColor raised() { return toQColor(theme::palette().raised); }
  [[nodiscard]] static QColor pressed() { return toQColor(theme::palette().pressed); }
  [[nodiscard]] static QColor well() { return toQColor(theme::palette().well); }
  [[nodiscard]] static QColor track() { return toQColor(theme::palette().track); }
  [[nodiscard]] static QColor pictureGround() { return toQColor(theme::palette().pictureGround); }
  [[nodiscard]] static QColor darkGround() { return toQColor(theme::palette().darkGround); }
  [[nodiscard]] static QColor dim() { return toQColor(theme::palette().dim); }
  [[nodiscard]] static QColor hairline() { return toQColor(theme::palette().hairline); }
  [[nodiscard]] static QColor cardBorder() { return toQColor(theme::palette().cardBorder); }
  [[nodiscard]] static QColor controlBorder() { return toQColor(theme::palette().controlBorder); }
  [[nodiscard]] static QColor gridLine() { return toQColor(theme::palette().gridLine); }
  [[nodiscard]] static QColor scrollIndicator() {
    return toQColor(theme::palette().scrollIndicator);
  }
  [[nodiscard]] static QColor ink() { return toQColor(theme::palette().ink); }
  [[nodiscard]] static QColor softInk() { return toQColor(theme::palette().softInk); }
  [[nodiscard]] static QColor faintInk() { return toQColor(theme::palette().faintInk); }
  [[nodiscard]] static QColor glyph() { return toQColor(theme::palette().glyph); }
  [[nodiscard]] static QColor faintGlyph() { return toQColor(theme::palette().faintGlyph); }
  [[nodiscard]] static QColor inkOnTint() { return toQColor(theme::palette().inkOnTint); }
  [[nodiscard]] static QColor inkOnDanger() { return toQColor(theme::palette().inkOnDanger); }
  [[nodiscard]] static QColor inkOnDark() { return toQColor(theme::palette().inkOnDark); }
  [[nodiscard]] static QColor danger() { return toQColor(theme::palette().danger); }
  [[nodiscard]] static QColor dangerPressed() { return toQColor(theme::palette().dangerPressed); }
  [[nodiscard]] static double borderWidth() { return theme::palette().borderWidth; }
  [[nodiscard]] static double panelRadius() { return theme::kPanelRadius; }
  [[nodiscard]] static double tileRadius() { return theme::kTileRadius; }
  [[nodiscard]] static double cardRadius() { return theme::kCardRadius; }
  [[nodiscard]] static double captionSize() { return theme::kCaptionSize; }
  [[nodiscard]] static double footnoteSize() { return theme::kFootnoteSize; }
  [[nodiscard]] static double subheadlineSize() { return theme::kSubheadlineSize; }
  [[nodiscard]] static double calloutSize() { return theme::kCalloutSize; }
  [[nodiscard]] static double bodySize() { return theme::kBodySize; }
  [[nodiscard]] static double title3Size() { return theme::kTitle3Size; }
  [[nodiscard]] static double title2Size() { return theme::kTitle2Size; }
  [[nodiscard]] static double title1Size() { return theme::kTitle1Size; }
  [[nodiscard]] static double textScale();
  [[nodiscard]] static bool stillness() { return theme::stillness(); }
  [[nodiscard]] static int pressDuration() { return moving(theme::kPressDuration); }
  [[nodiscard]] static int slideDuration() { return moving(theme::kSlideDuration); }
  [[nodiscard]] static int moveDuration() { return moving(theme::kMoveDuration); }
  [[nodiscard]] static int quickDuration() { return theme::kQuickDuration; }
  [[nodiscard]] static int fadeDuration() { return theme::kFadeDuration; }

  /// What a ground is drawn in that a controller asks for: white is a card's.
  Q_INVOKABLE static QColor drawnGround(const QColor& asked, const QColor& card);

 signals:
  void looksChanged();

 private:
  [[nodiscard]] static int moving(int duration) { return stillness() ? 0 : duration; }

  Subscription looks_;
};

}  // namespace kindora
