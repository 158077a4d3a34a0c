// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtSystemLooks.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/platform/qt/DesktopPortal.h"

namespace kindora {
namespace {

struct Words {
  std::string name;
  QByteArray words;
  Looks looks;
};

class LooksNamed : public ::testing::TestWithParam<Words> {};

TEST_P(LooksNamed, AreThese) { EXPECT_EQ(looksNamed(GetParam().words), GetParam().looks); }

INSTANTIATE_TEST_SUITE_P(
    Words, LooksNamed,
    ::testing::Values(
        Words{"None", "", {}}, Words{"Light", "light", {}}, Words{"Dark", "dark", {.dark = true}},
        Words{"Contrast", "contrast", {.highContrast = true}},
        Words{"Still", "still", {.reducedMotion = true}},
        Words{"LargerText", "text=150", {.textScale = 1.5}},
        Words{"LargestText", "text=900", {.textScale = 2}},
        Words{"NoSmallerText", "text=50", {.textScale = 1}},
        Words{"NoNumber", "text=nan", {.textScale = 1}},
        Words{"All",
              "dark, contrast, still, text=200",
              {.dark = true, .highContrast = true, .reducedMotion = true, .textScale = 2}}),
    [](const auto& each) { return each.param.name; });

struct Setting {
  std::string name;
  QString group;
  QString key;
  QVariant value;
  Looks otherwise;
  Looks looks;
};

const QString kCommon = QStringLiteral("org.freedesktop.appearance");
const QString kDesktop = QStringLiteral("org.gnome.desktop.interface");
const QString kScheme = QStringLiteral("color-scheme");
const QString kTextScale = QStringLiteral("text-scaling-factor");

class LooksSetIn : public ::testing::TestWithParam<Setting> {};

TEST_P(LooksSetIn, TheDesktopAreThese) {
  const Setting& setting = GetParam();
  SessionBus bus;
  DesktopPortal portal(bus.connection());
  portal.settings[setting.group][setting.key] = setting.value;
  const SettingsPortal settings(bus.connection());
  SessionBus::waitUntil(
      [&] { return settings.value(setting.group, setting.key) == setting.value; });
  EXPECT_EQ(looksSetIn(settings, setting.otherwise), setting.looks);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, LooksSetIn,
    ::testing::Values(
        Setting{"Dark", kCommon, kScheme, 1U, {}, {.dark = true}},
        Setting{"Light", kCommon, kScheme, 2U, {.dark = true}, {}},
        Setting{"NoScheme", kCommon, kScheme, 0U, {.dark = true}, {.dark = true}},
        Setting{"Contrast", kCommon, QStringLiteral("contrast"), 1U, {}, {.highContrast = true}},
        Setting{"ReducedMotion",
                kCommon,
                QStringLiteral("reduced-motion"),
                1U,
                {},
                {.reducedMotion = true}},
        Setting{"NoAnimations",
                kDesktop,
                QStringLiteral("enable-animations"),
                false,
                {},
                {.reducedMotion = true}},
        Setting{"Animations",
                kDesktop,
                QStringLiteral("enable-animations"),
                true,
                {.dark = true},
                {.dark = true}},
        Setting{"LargerText", kDesktop, kTextScale, 1.5, {}, {.textScale = 1.5}},
        Setting{"UsualText", kDesktop, kTextScale, 1.0, {.textScale = 1.2}, {}},
        Setting{"AWrongKind", kDesktop, kTextScale, QStringLiteral("large"), {}, {}}),
    [](const auto& each) { return each.param.name; });

// The variable is set for all tests, so that no test asks the machine.
class QtSystemLooksTest : public ::testing::Test {
 protected:
  QtSystemLooksTest() { qunsetenv("KINDORA_LOOKS"); }
  ~QtSystemLooksTest() override {
    qputenv("KINDORA_LOOKS", "light");
    qputenv("DBUS_SESSION_BUS_ADDRESS", address_);
  }

 private:
  QByteArray address_ = qgetenv("DBUS_SESSION_BUS_ADDRESS");
};

TEST_F(QtSystemLooksTest, TheVariableTakesThePlaceOfTheSystem) {
  qputenv("KINDORA_LOOKS", "dark,still");
  const QtSystemLooks looks;
  EXPECT_EQ(looks.looks(), (Looks{.dark = true, .reducedMotion = true}));
}

TEST_F(QtSystemLooksTest, WithoutABusTheyAreTheDefaultAtOnce) {
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  qputenv("XDG_RUNTIME_DIR", "/nowhere");
  const QtSystemLooks looks;
  EXPECT_EQ(looks.looks(), Looks{});
}

TEST_F(QtSystemLooksTest, TheyFollowTheDesktop) {
  SessionBus bus;
  DesktopPortal portal(bus.connection());
  portal.settings[kCommon][kScheme] = 1U;
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit());
  QtSystemLooks looks;
  int told = 0;
  const Subscription hearing = looks.observe([&told] { ++told; });
  EXPECT_EQ(looks.looks(), Looks{}) << "nobody waits for the desktop";
  SessionBus::waitUntil([&told] { return told == 1; });
  EXPECT_EQ(looks.looks(), Looks{.dark = true});
  portal.set(kCommon, QStringLiteral("accent-color"), 3.0);
  portal.set(kDesktop, kTextScale, 1.25);
  SessionBus::waitUntil([&told] { return told == 2; });
  EXPECT_EQ(looks.looks(), (Looks{.dark = true, .textScale = 1.25}));
}

}  // namespace
}  // namespace kindora
