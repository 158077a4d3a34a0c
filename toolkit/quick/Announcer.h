// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQuickItem>

namespace kindora {

/// Has assistive tools read something aloud that has just come into sight, without moving to it.
class Announcer : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// Tells of an accessible item, in the next turn of the event loop; one that has gone from sight
  /// by then is not told of.
  Q_INVOKABLE void announce(QQuickItem* item);

 signals:
  /// What is read aloud.
  void announced(const QString& text);
};

}  // namespace kindora
