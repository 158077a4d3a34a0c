// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include "main/Launch.h"

int main(int argc, char* argv[]) {
  const QGuiApplication application(argc, argv);
  QQmlApplicationEngine engine;
  return kindora::launch(engine) ? QGuiApplication::exec() : EXIT_FAILURE;
}
