// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/ShakeRecognizer.h"
#include "platform/qt/Accelerometer.h"

namespace kindora {

/// Hears that the phone, or on a desktop its window, is shaken, and tells the application. Reads
/// the accelerometer only while somebody listens.
class ShakeSource : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged)

 public:
  using Clock = std::function<ShakeRecognizer::Time()>;

  explicit ShakeSource(QObject* parent = nullptr);
  ShakeSource(std::optional<Accelerometer> accelerometer, Clock clock, QObject* parent = nullptr);

  [[nodiscard]] QQuickWindow* window() const { return window_; }
  void setWindow(QQuickWindow* window);
  [[nodiscard]] bool isSampling() const { return sampling_.isActive(); }
  /// Reads the accelerometer once.
  void sample();
  /// The second way to shake, for a key.
  Q_INVOKABLE static void shake();

 signals:
  void windowChanged();

 private:
  void listenOrRest();
  void windowMoved();

  QPointer<QQuickWindow> window_;
  std::optional<Accelerometer> accelerometer_;
  Clock clock_;
  ShakeRecognizer ofWindow_;
  ShakeRecognizer ofPhone_;
  QTimer sampling_;
};

}  // namespace kindora
