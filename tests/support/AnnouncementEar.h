// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/quick/Announcer.h"

namespace kindora {

/// Hears what an engine's items have read aloud.
class AnnouncementEar final {
 public:
  explicit AnnouncementEar(QQmlEngine& engine) {
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml\nimport Kindora.Toolkit.Quick\nQtObject { property var it: Announcer }", {});
    const std::unique_ptr<QObject> holder(component.create());
    EXPECT_NE(holder, nullptr) << component.errorString().toStdString();
    auto* announcer = holder->property("it").value<Announcer*>();
    QObject::connect(announcer, &Announcer::announced, &context_,
                     [this](const QString& text) { texts.push_back(text.toStdString()); });
  }

  std::vector<std::string> texts;

 private:
  QObject context_;
};

}  // namespace kindora
