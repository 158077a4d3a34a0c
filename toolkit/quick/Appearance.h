// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QObject>

#include "platform/Subscription.h"
#include "platform/UIColor.h"
#include "platform/UIFont.h"

namespace kindora {

/// The look that was configured at launch, for QML, and the app's one font in any size.
class Appearance : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QColor tint READ tint NOTIFY tintChanged)
  Q_PROPERTY(QColor tintedText READ tintedText NOTIFY tintChanged)
  Q_PROPERTY(QColor barTint READ barTint CONSTANT)
  Q_PROPERTY(QColor barForeground READ barForeground CONSTANT)
  Q_PROPERTY(QColor barTitle READ barTitle CONSTANT)
  Q_PROPERTY(QFont barTitleFont READ barTitleFont CONSTANT)
  Q_PROPERTY(QFont tabFont READ tabFont CONSTANT)

 public:
  Appearance();

  /// Of the lowest window, which is the app's own; grey while that window is dimmed.
  [[nodiscard]] static QColor tint();
  /// The tint, and the toolkit's own before there is a window.
  [[nodiscard]] static UIColor tintColor();
  /// The tint as small texts need it to be readable.
  [[nodiscard]] static QColor tintedText();
  [[nodiscard]] static QColor barTint();
  [[nodiscard]] static QColor barForeground();
  [[nodiscard]] static QColor barTitle();
  [[nodiscard]] static QFont barTitleFont();
  [[nodiscard]] static QFont tabFont();
  /// The app's font at that many points of the view, times the scale; without one, times the
  /// user's own, of whose changes a binding does not hear.
  Q_INVOKABLE static QFont font(double points);
  Q_INVOKABLE static QFont font(double points, double scale);
  Q_INVOKABLE static QFont boldFont(double points);
  Q_INVOKABLE static QFont boldFont(double points, double scale);

 signals:
  void tintChanged();

 private:
  Subscription looks_;
};

/// The font asked for where the device has it; else Lato, in the weight that the name ends in.
/// Sizes are points of the view, larger by the user's scale if the font has part in it.
[[nodiscard]] QFont resolvedFont(const UIFont& font);

}  // namespace kindora
