// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/Translations.h"

#include <QCoreApplication>
#include <QTranslator>
#include <algorithm>
#include <memory>

namespace kindora {

QStringList translationFolders() {
  return {
      QStringLiteral(":/kindora/translations"),
      QCoreApplication::applicationDirPath() + QStringLiteral("/../share/kindora/translations")};
}

bool installTranslations(const QString& name, const QLocale& locale, const QStringList& folders) {
  auto translator = std::make_unique<QTranslator>();
  const bool found = std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
    return translator->load(locale, name, QStringLiteral("_"), folder);
  });
  if (!found) return false;
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

}  // namespace kindora
