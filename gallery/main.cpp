// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include "app/ProgramStart.h"
#include "gallery/Launch.h"

int main(int argc, char* argv[]) {
  kindora::leaveNothingBehind();
  const QGuiApplication application(argc, argv);
  QQmlApplicationEngine engine;
  return kindora::launchGallery(engine) ? QGuiApplication::exec() : EXIT_FAILURE;
}
