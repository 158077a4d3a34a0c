// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/RecordPart.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include "platform/FatalError.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {
namespace {

QQmlEngine& engineOf(const QQuickItem& item) {
  for (const QQuickItem* up = &item; up != nullptr; up = up->parentItem()) {
    if (QQmlEngine* engine = qmlEngine(up)) return *engine;
  }
  if (QQmlEngine* engine = item.window() != nullptr ? qmlEngine(item.window()) : nullptr) {
    return *engine;
  }
  static auto* const shared = new QQmlEngine(QCoreApplication::instance());
  return *shared;
}

// Each is compiled once for an engine, which keeps it.
QQmlComponent& componentOf(QQmlEngine& engine, const QString& type) {
  if (auto* known = engine.findChild<QQmlComponent*>(type, Qt::FindDirectChildrenOnly)) {
    return *known;
  }
  auto* made = new QQmlComponent(&engine, pageUrl(u"Kindora.Toolkit.Quick", type), &engine);
  made->setObjectName(type);
  return *made;
}

}  // namespace

std::unique_ptr<FaceItem> makeRecordPart(const QString& type, const UIViewRef& view,
                                         QQuickItem& parent) {
  QQmlComponent& component = componentOf(engineOf(parent), type);
  QObject* made = component.createWithInitialProperties(
      {{QStringLiteral("record"), QVariant::fromValue(ViewHandle{view})},
       {QStringLiteral("parent"), QVariant::fromValue(&parent)},
       {QStringLiteral("width"), parent.width()},
       {QStringLiteral("height"), parent.height()}});
  std::unique_ptr<FaceItem> part(qobject_cast<FaceItem*>(made));
  if (!part) fatalError("cannot show: " + component.errorString().toStdString());
  part->setParent(&parent);
  return part;
}

}  // namespace kindora
