// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "tests/support/QtWarnings.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/quick/ViewItem.h"

namespace kindora {

/// The outlets of an owner, drawn in a window as a page does it.
class OutletFixture : public QuickFixture {
 protected:
  OutletFixture() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(200, 200);
  }

  /// Draws the outlet by a QML type, with what the page says about it.
  void draw(const QByteArray& type, const QString& outlet, const QByteArray& page = {}) {
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Kindora.Toolkit.Quick\n" + type + " {" + page + "}",
                      {});
    item.reset(qobject_cast<ViewItem*>(component.createWithInitialProperties(
        {{QStringLiteral("owner"), QVariant::fromValue<QObject*>(&owner)},
         {QStringLiteral("outlet"), outlet},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    ASSERT_NE(item, nullptr) << component.errorString().toStdString();
    inner = item->childItems().constFirst();
  }

  const QtWarnings warnings;
  QQmlEngine engine;
  Owner owner;
  std::unique_ptr<ViewItem> item;
  QQuickItem* inner = nullptr;  ///< what it draws with
};

}  // namespace kindora
