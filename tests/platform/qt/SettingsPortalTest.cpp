// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/SettingsPortal.h"

#include <gtest/gtest.h>

#include <QDBusPendingCall>

#include "tests/platform/qt/DesktopPortal.h"

namespace kindora {
namespace {

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColorScheme = QStringLiteral("color-scheme");

class SettingsPortalTest : public ::testing::Test {
 protected:
  SettingsPortalTest() { portal.settings[kAppearance][kColorScheme] = 1U; }
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
  EXPECT_FALSE(settings.value(kAppearance, kColorScheme).isValid());
  hear(settings);
  waitForChanges(1);
  EXPECT_EQ(settings.value(kAppearance, kColorScheme), QVariant(1U));
  EXPECT_FALSE(settings.value(kAppearance, QStringLiteral("contrast")).isValid());
  EXPECT_EQ(portal.reads, 1);
}

TEST_F(SettingsPortalTest, FollowsChanges) {
  SettingsPortal settings(bus.connection());
  hear(settings);
  waitForChanges(1);
  portal.set(QStringLiteral("org.gnome.desktop.sound"), QStringLiteral("theme-name"), 3);
  portal.set(kAppearance, kColorScheme, 2U);
  waitForChanges(2);
  EXPECT_EQ(settings.value(kAppearance, kColorScheme), QVariant(2U));
  EXPECT_FALSE(
      settings.value(QStringLiteral("org.gnome.desktop.sound"), QStringLiteral("theme-name"))
          .isValid())
      << "of no concern";
}

TEST_F(SettingsPortalTest, KnowsNothingWithoutABus) {
  const SettingsPortal settings{QDBusConnection(QStringLiteral("never connected"))};
  EXPECT_FALSE(settings.value(kAppearance, kColorScheme).isValid());
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
  EXPECT_FALSE(settings.value(kAppearance, kColorScheme).isValid());
}

}  // namespace
}  // namespace kindora
