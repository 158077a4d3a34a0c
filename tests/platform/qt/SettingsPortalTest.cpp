// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/SettingsPortal.h"

#include <gtest/gtest.h>

#include <QDBusPendingCall>

#include "tests/platform/qt/DesktopPortal.h"

namespace kindora {
namespace {

const QString kCommon = QStringLiteral("org.freedesktop.appearance");
const QString kScheme = QStringLiteral("color-scheme");

class SettingsPortalTest : public ::testing::Test {
 protected:
  SettingsPortalTest() { portal.settings[kCommon][kScheme] = 1U; }
  // Counts the changes that are told from now on.
  void hear(SettingsPortal& settings) {
    QObject::connect(&settings, &SettingsPortal::changed, [this] { ++changes; });
  }
  void waitForChanges(int count) {
    SessionBus::waitUntil([this, count] { return changes == count; });
  }

  SessionBus bus;
  DesktopPortal portal{bus.connection()};
  int changes = 0;
};

TEST_F(SettingsPortalTest, KnowsNothingUntilTheDesktopHasAnswered) {
  SettingsPortal settings(bus.connection());
  EXPECT_FALSE(settings.value(kCommon, kScheme).isValid());
  hear(settings);
  waitForChanges(1);
  EXPECT_EQ(settings.value(kCommon, kScheme), QVariant(1U));
  EXPECT_FALSE(settings.value(kCommon, QStringLiteral("contrast")).isValid());
  EXPECT_EQ(portal.reads, 1);
}

TEST_F(SettingsPortalTest, FollowsChanges) {
  SettingsPortal settings(bus.connection());
  hear(settings);
  waitForChanges(1);
  portal.set(QStringLiteral("org.gnome.desktop.sound"), QStringLiteral("theme-name"), 3);
  portal.set(kCommon, kScheme, 2U);
  waitForChanges(2);
  EXPECT_EQ(settings.value(kCommon, kScheme), QVariant(2U));
  EXPECT_FALSE(
      settings.value(QStringLiteral("org.gnome.desktop.sound"), QStringLiteral("theme-name"))
          .isValid())
      << "of no concern";
}

TEST_F(SettingsPortalTest, KnowsNothingWithoutABus) {
  const SettingsPortal settings{QDBusConnection(QStringLiteral("never connected"))};
  EXPECT_FALSE(settings.value(kCommon, kScheme).isValid());
}

TEST(SettingsPortalOnABareBus, KnowsNothingWithoutAPortal) {
  SessionBus bus;
  QDBusConnection mine = bus.connection();
  SettingsPortal settings(mine);
  int changes = 0;
  QObject::connect(&settings, &SettingsPortal::changed, [&changes] { ++changes; });
  // Answers come in the order of the questions.
  const QDBusPendingCall later = mine.asyncCall(QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
  SessionBus::waitUntil([&later] { return later.isFinished(); });
  QCoreApplication::processEvents();
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(settings.value(kCommon, kScheme).isValid());
}

}  // namespace
}  // namespace kindora
