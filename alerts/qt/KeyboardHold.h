// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

class QKeyEvent;

namespace kindora {

/// Keeps a window's keyboard in one item of it for a while. Tab goes round inside the item, Esc and
/// the system's back mean what they mean to the toolkit, and no shortcut of the program's is
/// triggered. Afterwards the keyboard is where it was.
class KeyboardHold : public QObject {
  Q_OBJECT
  QML_ELEMENT
  /// A focus scope.
  Q_PROPERTY(QQuickItem* item MEMBER item_ NOTIFY itemChanged)
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] bool isActive() const { return active_; }
  /// Without a window to hold the keyboard of, the item is only made to have it later.
  void setActive(bool active);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void itemChanged();
  void activeChanged();

 private:
  void begin();
  void end();
  [[nodiscard]] bool press(const QKeyEvent& key);
  void moveOn(bool forward);

  QPointer<QQuickItem> item_;
  QPointer<QQuickItem> before_;
  QPointer<QQuickWindow> window_;
  bool active_ = false;
};

}  // namespace kindora
