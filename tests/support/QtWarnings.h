// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QtGlobal>
#include <utility>

namespace kindora {

/// Fails the test if Qt or QML warns of anything while it is there. One at a time; the first member
/// of a fixture, so that it hears of the others' end too.
class QtWarnings final {
 public:
  QtWarnings() : before_(qInstallMessageHandler(note)) { heard().clear(); }
  ~QtWarnings() {
    qInstallMessageHandler(before_);
    EXPECT_EQ(heard().join(u'\n').toStdString(), "");
  }
  /// What was warned of so far, which no longer fails the test.
  [[nodiscard]] static QStringList take() { return std::exchange(heard(), {}); }

  QtWarnings(const QtWarnings&) = delete;
  QtWarnings& operator=(const QtWarnings&) = delete;

 private:
  static QStringList& heard() {
    static QStringList list;
    return list;
  }
  static void note(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg) heard() << text;
  }

  QtMessageHandler before_;
};

}  // namespace kindora
