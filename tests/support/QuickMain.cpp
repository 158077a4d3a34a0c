// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickWindow>

// The entry point of tests that draw: without a display, in software and in the default looks, so
// that every machine draws the same, and with every finger's move delivered by itself.
int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("KINDORA_LOOKS", "light");
  qputenv("QML_NO_TOUCH_COMPRESSION", "1");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
