// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/main/Launch.h"

#include <QGuiApplication>
#include <QIcon>
#include <QtQml/QQmlExtensionPlugin>

#include "app/main/MainStoryboard.h"
#include "app/shell/AppDelegate.h"
#include "app/shell/AppPhoneFormatEnvironment.h"
#include "platform/qt/services/QtServices.h"

Q_IMPORT_QML_PLUGIN(Kindora_AppPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_EffectsPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_ScreensPlugin)

namespace kindora {

bool launch(QQmlApplicationEngine& engine) {
  QGuiApplication::setApplicationName(QStringLiteral("kindora"));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Kindora"));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.kindora.Kindora"));
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/kindora/images/appIcon.svg")));
  installServices(makeQtServices());
  installPhoneFormatEnvironment(std::make_shared<AppPhoneFormatEnvironment>());

  AppDelegate& delegate = AppDelegate::sharedDelegate();
  delegate.window = std::make_shared<UIWindow>();
  delegate.window->setRootViewController(makeRootTabBarController());
  delegate.applicationDidFinishLaunching();
  delegate.window->makeKeyAndVisible();

  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));  // the default from Qt 6.5 on
  engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kindora/App/Main.qml")));
  return !engine.rootObjects().isEmpty();
}

}  // namespace kindora
