// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Theme.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

namespace kindora {
namespace {

TEST(Theme, PagesReadWhatRecordsRead) {
  QQmlEngine engine;
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
  QQmlComponent component(&engine);
  component.setData(R"(
    import QtQuick
    import Kindora.Toolkit.Quick
    QtObject {
      property color danger: Theme.danger
      property real radius: Theme.cardRadius
      property int move: Theme.moveDuration
    })",
                    {});
  const std::unique_ptr<QObject> page(component.create());
  ASSERT_NE(page, nullptr) << component.errorString().toStdString();
  EXPECT_EQ(page->property("danger").value<QColor>(), toQColor(theme::kDanger));
  EXPECT_EQ(page->property("radius").toDouble(), theme::kCardRadius);
  EXPECT_EQ(page->property("move").toInt(), theme::kMoveDuration);
}

}  // namespace
}  // namespace kindora
