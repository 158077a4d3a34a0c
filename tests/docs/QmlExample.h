// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "tests/support/QuickFixture.h"

namespace kindora {

/// An example of QML in a window. A warning of the engine fails the test.
class QmlExample : public QuickFixture {
 protected:
  QmlExample() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
      for (const QQmlError& warning : warnings) ADD_FAILURE() << warning.toString().toStdString();
    });
  }

  /// Shows the item that a document makes.
  void show(const QByteArray& document) {
    QQmlComponent component(&engine);
    component.setData(document, QUrl());
    root.reset(qobject_cast<QQuickItem*>(component.create()));
    ASSERT_TRUE(root) << component.errorString().toStdString();
    root->setParentItem(window.contentItem());
    static_cast<void>(drawn());
  }

  QQmlEngine engine;
  std::unique_ptr<QQuickItem> root;
};

}  // namespace kindora
