// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What every program of this tree does between its entry point and its first screen.
//
//   leaveNothingBehind();
//   const QGuiApplication application(argc, argv);
//   startProgram({.name = QStringLiteral("kindora"), .displayName = QStringLiteral("Kindora")});
//   // Make a window and its root controller here.
//   return showWindows(engine, pageUrl(u"Kindora.Main", u"Main"));
#pragma once

#include <QQmlApplicationEngine>
#include <QString>
#include <QUrl>

#include "platform/qt/QtServices.h"
#include "platform/services/Services.h"

namespace kindora {

struct ProgramIdentity {
  QString name;
  QString displayName;
  QString desktopFileName = {};
};

/// Keeps Qt from storing compiled shaders and QML on the disk. Before the QGuiApplication is made.
void leaveNothingBehind();

/// Names the program, gives it the icon and the user's language, and installs the services and the
/// phone formats. Once, in a QGuiApplication, before anything else of the program is made.
void startProgram(const ProgramIdentity& identity, Services installed = makeQtServices());

/// Draws the windows that are visible with a QML file whose root is a PhoneWindow. False, with what
/// is wrong on standard error, when it cannot be drawn.
[[nodiscard]] bool showWindows(QQmlApplicationEngine& engine, const QUrl& file);

}  // namespace kindora
