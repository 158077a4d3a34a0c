// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Announcer.h"

#include <QAccessible>
#include <QPointer>

namespace kindora {

void Announcer::announce(QQuickItem* item) {
  const auto tell = [this, item = QPointer(item)] {
    if (!item || item->window() == nullptr || !item->isVisible()) return;
    // Not every system knows alerts: on Linux an item of that role is read when it is shown.
    for (const QAccessible::Event type : {QAccessible::Alert, QAccessible::ObjectShow}) {
      QAccessibleEvent event(item, type);
      QAccessible::updateAccessibility(&event);
    }
    if (const auto* spoken = QAccessible::queryAccessibleInterface(item)) {
      emit announced(spoken->text(QAccessible::Name));
    }
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

}  // namespace kindora
