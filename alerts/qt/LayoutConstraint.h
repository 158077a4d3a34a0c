// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqml.h>
#include <QObject>

#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {

/// A constraint that a helper made, for QML to hold. The constraint does not end with it.
class LayoutConstraint : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("QavAutoLayout makes them")
  /// Points; takes effect at the next layout.
  Q_PROPERTY(double constant READ constant WRITE setConstant NOTIFY constantChanged)
  /// As in "a.left = b.right + 8".
  Q_PROPERTY(QString description READ description NOTIFY constantChanged)

 public:
  explicit LayoutConstraint(NSLayoutConstraintRef constraint, QObject* parent = nullptr);

  [[nodiscard]] const NSLayoutConstraintRef& constraint() const { return constraint_; }
  [[nodiscard]] double constant() const;
  void setConstant(double constant);
  [[nodiscard]] QString description() const;
  /// Whether an item holds it; it has no effect otherwise.
  Q_INVOKABLE [[nodiscard]] bool isInstalled() const;
  Q_INVOKABLE void remove();

 signals:
  void constantChanged();

 private:
  NSLayoutConstraintRef constraint_;
};

}  // namespace kindora
