// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/KeyboardSource.h"

#include <QGuiApplication>
#include <QInputMethod>

#include "platform/NotificationCenter.h"

namespace kindora {
namespace {

constexpr double kKeyboardDuration = 0.25;  // seconds; Qt does not tell how long the keyboard takes

}  // namespace

KeyboardSource::KeyboardSource(QQuickItem* parent) : QQuickItem(parent) {
  const QInputMethod* method = QGuiApplication::inputMethod();
  connect(method, &QInputMethod::keyboardRectangleChanged, this, &KeyboardSource::readInputMethod);
  connect(method, &QInputMethod::visibleChanged, this, &KeyboardSource::readInputMethod);
}

void KeyboardSource::readInputMethod() {
  const QInputMethod* method = QGuiApplication::inputMethod();
  keyboardMoves(method->keyboardRectangle(), method->isVisible());
}

void KeyboardSource::keyboardMoves(const QRectF& sceneRect, bool visible) {
  sceneRect_ = visible && !sceneRect.isEmpty() ? sceneRect : QRectF();
  post();
}

void KeyboardSource::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (up_) post();
}

CGRect KeyboardSource::endFrame() const {
  if (sceneRect_.isNull()) return {{0, height()}, {width(), 0}};
  const QRectF rect = mapRectFromScene(sceneRect_);
  return {{rect.x(), rect.y()}, {rect.width(), rect.height()}};
}

void KeyboardSource::post() {
  const bool up = !sceneRect_.isNull();
  const KeyboardNotification notification{endFrame(), kKeyboardDuration};
  if (up == up_ && (!up || notification.endFrame == posted_)) return;
  const bool turns = up != up_;
  up_ = up;
  posted_ = notification.endFrame;
  NotificationCenter& center = NotificationCenter::defaultCenter();
  center.post(UIKeyboardWillChangeFrameNotification, notification);
  if (turns) {
    center.post(up ? UIKeyboardWillShowNotification : UIKeyboardWillHideNotification, notification);
  }
}

}  // namespace kindora
