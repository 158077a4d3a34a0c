// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/CameraProbe.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QPluginLoader>

namespace kindora {
namespace {

constexpr const char* kBackendVariable = "QT_MEDIA_BACKEND";

// The backend's name; empty when the file is none or cannot be loaded.
QString loadedBackend(const QString& file) {
  QPluginLoader loader(file);
  const QJsonObject about = loader.metaData().value(QLatin1String("MetaData")).toObject();
  const QString name = about.value(QLatin1String("Keys")).toArray().at(0).toString();
  return !name.isEmpty() && loader.load() ? name : QString();
}

bool chooseBackend() {
  const QString wished = qEnvironmentVariable(kBackendVariable);
  for (const QString& folder : QCoreApplication::libraryPaths()) {
    const QDir backends(folder + QStringLiteral("/multimedia"));
    // By name, which puts the backend that needs no further plugins in front.
    for (const QFileInfo& file : backends.entryInfoList(QDir::Files, QDir::Name)) {
      const QString name = loadedBackend(file.filePath());
      if (name.isEmpty() || (!wished.isEmpty() && name != wished)) continue;
      qputenv(kBackendVariable, name.toUtf8());
      return true;
    }
  }
  return false;
}

}  // namespace

bool cameraPartsAreInstalled() {
  static const bool installed = QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::QmlImportsPath) +
                                                  QStringLiteral("/QtMultimedia/qmldir")) &&
                                chooseBackend();
  return installed;
}

}  // namespace kindora
