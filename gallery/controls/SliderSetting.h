// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace kindora {

/// A number that the user sets with a slider: always within its range, and a whole number of steps
/// above its minimum.
class SliderSetting : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by controllers")
  Q_PROPERTY(QString name READ name CONSTANT)
  Q_PROPERTY(double minimum READ minimum CONSTANT)
  Q_PROPERTY(double maximum READ maximum CONSTANT)
  Q_PROPERTY(double step READ step CONSTANT)
  Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
  Q_PROPERTY(QString text READ text NOTIFY valueChanged)

 public:
  struct Range {
    QString name;
    double minimum = 0;
    double maximum = 1;
    double step = 0.1;
    double value = 0;   ///< at first
    int decimals = 1;   ///< of the text
    QString unit = {};  ///< behind the number
  };
  explicit SliderSetting(Range range);

  [[nodiscard]] const QString& name() const { return range_.name; }
  [[nodiscard]] double minimum() const { return range_.minimum; }
  [[nodiscard]] double maximum() const { return range_.maximum; }
  [[nodiscard]] double step() const { return range_.step; }
  [[nodiscard]] double value() const { return value_; }
  /// What is not a number changes nothing.
  void setValue(double value);
  /// The number as it is read, with its unit.
  [[nodiscard]] QString text() const;

 signals:
  void valueChanged();

 private:
  const Range range_;
  double value_;
};

}  // namespace kindora
