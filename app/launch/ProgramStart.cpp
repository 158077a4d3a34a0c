// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/launch/ProgramStart.h"

#include <QGuiApplication>
#include <QIcon>
#include <QtQml/QQmlExtensionPlugin>
#include <memory>

#include "app/shell/AppPhoneFormatEnvironment.h"
#include "platform/qt/quick/QtViewServices.h"
#include "platform/qt/services/QtServices.h"

Q_IMPORT_QML_PLUGIN(Kindora_EffectsPlugin)
Q_IMPORT_QML_PLUGIN(Kindora_PlatformPlugin)

namespace kindora {

void startProgram(const ProgramIdentity& identity) {
  QGuiApplication::setApplicationName(identity.name);
  QGuiApplication::setApplicationDisplayName(identity.displayName);
  QGuiApplication::setDesktopFileName(identity.desktopFileName);
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/kindora/images/appIcon.svg")));
  installServices(makeQtServices());
  installViewServices(makeQtViewServices());
  installPhoneFormatEnvironment(std::make_shared<AppPhoneFormatEnvironment>());
}

bool showWindow(QQmlApplicationEngine& engine, UIWindow& window, const QUrl& file) {
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));  // the default from Qt 6.5 on
  engine.setInitialProperties({{QStringLiteral("host"), QVariant::fromValue(&window)}});
  engine.load(file);
  return !engine.rootObjects().isEmpty();
}

}  // namespace kindora
