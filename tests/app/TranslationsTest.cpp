// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/Translations.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include "app/RejectAlert.h"

namespace kindora {
namespace {

// A compiled file of one translation, as Qt's release tool writes it: hashes of the source texts
// with the places of their messages, then the messages in tagged fields.
QByteArray compiledFile(const QByteArray& context, const QByteArray& english,
                        const QString& translation) {
  quint32 hash = 0;
  for (const char letter : english) {
    hash = (hash << 4) + static_cast<quint8>(letter);
    const quint32 high = hash & 0xf0000000;
    hash = (hash ^ (high >> 24)) & ~high;
  }
  QByteArray message;
  QDataStream fields(&message, QIODevice::WriteOnly);
  // QString and QByteArray are written with their lengths in bytes before them.
  fields << quint8{3} << translation;
  fields << quint8{6} << english;
  fields << quint8{7} << context;
  fields << quint8{1};
  QByteArray result = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
  QDataStream sections(&result, QIODevice::WriteOnly | QIODevice::Append);
  sections << quint8{0x42} << quint32{8} << hash << quint32{0};
  sections << quint8{0x69} << message;
  return result;
}

class TranslationsTest : public testing::Test {
 protected:
  ~TranslationsTest() override {
    for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
      delete translator;
    }
  }

  void write(const QString& name, const QString& translation) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(compiledFile("kindora::UIAlertController", "Never Mind", translation));
  }
  [[nodiscard]] static QString shownForNeverMind() {
    return rejectAlertForChallenge(
               {}, [] {}, [] {})
        ->actionTitles()
        .last();
  }

  const QTemporaryDir folder;
};

TEST_F(TranslationsTest, WithoutAFileTextsAreEnglish) {
  EXPECT_FALSE(installTranslations(QStringLiteral("kindora"), QLocale(QLocale::German),
                                   {folder.path(), folder.filePath(QStringLiteral("none"))}));
  EXPECT_EQ(shownForNeverMind(), QStringLiteral("Never Mind"));
}

TEST_F(TranslationsTest, ShowsTheTextsOfTheUsersLanguage) {
  write(QStringLiteral("kindora_de.qm"), QStringLiteral("Doch nicht"));
  ASSERT_TRUE(installTranslations(QStringLiteral("kindora"), QLocale(QStringLiteral("de_AT")),
                                  {folder.filePath(QStringLiteral("none")), folder.path()}));
  EXPECT_EQ(shownForNeverMind(), QStringLiteral("Doch nicht"));
}

TEST_F(TranslationsTest, LeavesTheFilesOfOthersAlone) {
  write(QStringLiteral("kindora_fr.qm"), QStringLiteral("Tant pis"));
  write(QStringLiteral("other_de.qm"), QStringLiteral("Egal"));
  EXPECT_FALSE(
      installTranslations(QStringLiteral("kindora"), QLocale(QLocale::German), {folder.path()}));
  EXPECT_EQ(shownForNeverMind(), QStringLiteral("Never Mind"));
}

TEST_F(TranslationsTest, ADamagedFileIsNone) {
  QFile file(folder.filePath(QStringLiteral("kindora_de.qm")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no translations");
  file.close();
  EXPECT_FALSE(
      installTranslations(QStringLiteral("kindora"), QLocale(QLocale::German), {folder.path()}));
}

}  // namespace
}  // namespace kindora
