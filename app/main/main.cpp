// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QtQml/QQmlExtensionPlugin>

#include "app/main/MainStoryboard.h"
#include "app/shell/AppDelegate.h"
#include "platform/qt/services/QtServices.h"

Q_IMPORT_QML_PLUGIN(Kindora_AppPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_EffectsPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_ScreensPlugin)

int main(int argc, char* argv[]) {
  QGuiApplication::setApplicationName(QStringLiteral("kindora"));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Kindora"));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.kindora.Kindora"));
  QGuiApplication application(argc, argv);
  kindora::installServices(kindora::makeQtServices());

  kindora::AppDelegate& delegate = kindora::AppDelegate::sharedDelegate();
  delegate.window = std::make_shared<kindora::UIWindow>();
  delegate.window->setRootViewController(kindora::makeRootTabBarController());
  delegate.applicationDidFinishLaunching();
  delegate.window->makeKeyAndVisible();

  QQmlApplicationEngine engine;
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));  // the default from Qt 6.5 on
  engine.setInitialProperties({{QStringLiteral("host"), QVariant::fromValue(delegate.window.get())}});
  engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kindora/App/Main.qml")));
  if (engine.rootObjects().isEmpty()) return EXIT_FAILURE;
  return QGuiApplication::exec();
}
