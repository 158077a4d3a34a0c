// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/ProgramStart.h"

#include <QGuiApplication>
#include <QIcon>
#include <memory>
#include <utility>

#include "app/AppPhoneFormatEnvironment.h"
#include "app/Translations.h"
#include "toolkit/quick/QtViewServices.h"

namespace kindora {

void leaveNothingBehind() {
  QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
  qputenv("QML_DISABLE_DISK_CACHE", "1");
}

void startProgram(const ProgramIdentity& identity, Services installed) {
  QGuiApplication::setApplicationName(identity.name);
  QGuiApplication::setApplicationDisplayName(identity.displayName);
  QGuiApplication::setDesktopFileName(identity.desktopFileName);
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/kindora/images/appIcon.svg")));
  installTranslations(identity.name, QLocale(), translationFolders());
  installServices(std::move(installed));
  installViewServices(makeQtViewServices());
  installPhoneFormatEnvironment(std::make_shared<AppPhoneFormatEnvironment>());
}

bool showWindows(QQmlApplicationEngine& engine, const QUrl& file) {
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));  // the default from Qt 6.5 on
  engine.load(file);
  return !engine.rootObjects().isEmpty();
}

}  // namespace kindora
