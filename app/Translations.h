// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Texts are written in English and marked for Qt's translation tools: tr in C++, qsTr in QML.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace kindora {

/// Where the program looks for translations: among its resources, and where packages install them.
[[nodiscard]] QStringList translationFolders();

/// Shows texts in the user's language from now on, with the first file of the folders that fits the
/// locale: for de_AT NAME_de_AT.qm, else NAME_de.qm. False, and all stays English, without one.
bool installTranslations(const QString& name, const QLocale& locale, const QStringList& folders);

}  // namespace kindora
