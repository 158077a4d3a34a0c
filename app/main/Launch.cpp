// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/main/Launch.h"

#include <QtQml/QQmlExtensionPlugin>

#include "app/launch/ProgramStart.h"
#include "app/main/MainStoryboard.h"
#include "app/shell/AppDelegate.h"

Q_IMPORT_QML_PLUGIN(Kindora_AppPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_ScreensPlugin)

namespace kindora {

bool launch(QQmlApplicationEngine& engine) {
  startProgram({.name = QStringLiteral("kindora"),
                .displayName = QStringLiteral("Kindora"),
                .desktopFileName = QStringLiteral("org.kindora.Kindora")});

  AppDelegate& delegate = AppDelegate::sharedDelegate();
  delegate.window = std::make_shared<UIWindow>();
  delegate.window->setRootViewController(makeRootTabBarController());
  delegate.applicationDidFinishLaunching();
  delegate.window->makeKeyAndVisible();

  return showWindow(engine, *delegate.window,
                    QUrl(QStringLiteral("qrc:/qt/qml/Kindora/App/Main.qml")));
}

}  // namespace kindora
