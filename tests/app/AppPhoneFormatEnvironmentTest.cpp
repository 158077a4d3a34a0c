// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppPhoneFormatEnvironment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>

namespace kindora {
namespace {

TEST(AppPhoneFormatEnvironment, ReadsTheAppsPhoneFormats) {
  AppPhoneFormatEnvironment environment;
  QFile file(QStringLiteral(KINDORA_PHONEFORMATS_FILE));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(environment.data("PhoneFormats", "dat").size(), static_cast<std::size_t>(file.size()));
}

TEST(AppPhoneFormatEnvironment, AResourceThatIsMissingIsEmpty) {
  AppPhoneFormatEnvironment environment;
  EXPECT_TRUE(environment.data("NoSuchThing", "dat").empty());
}

// The tests run in the locale C, which names no country.
TEST(AppPhoneFormatEnvironment, WithoutACountryInTheLocaleItIsUs) {
  ASSERT_EQ(QLocale::system().language(), QLocale::C);
  AppPhoneFormatEnvironment environment;
  EXPECT_EQ(environment.countryCode(), "US");
}

}  // namespace
}  // namespace kindora
