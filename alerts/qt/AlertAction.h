// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace kindora {

/// A button of an Alert.
class AlertAction : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
  Q_PROPERTY(Style style READ style WRITE setStyle NOTIFY changed)
  Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY changed)

 public:
  enum class Style { Default = 0, Cancel = 1, Destructive = 2 };
  Q_ENUM(Style)

  using QObject::QObject;

  [[nodiscard]] const QString& text() const { return text_; }
  void setText(const QString& text);
  [[nodiscard]] Style style() const { return style_; }
  void setStyle(Style style);
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

 signals:
  void changed();
  /// The user chose the action, and the alert has gone.
  void triggered();

 private:
  QString text_;
  Style style_ = Style::Default;
  bool enabled_ = true;
};

}  // namespace kindora
