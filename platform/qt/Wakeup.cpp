// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/Wakeup.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace kindora {

Wakeup::Wakeup(std::function<void()> woken) : woken_(std::move(woken)) {}

void Wakeup::post() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

bool Wakeup::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  woken_();
  return true;
}

}  // namespace kindora
