// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/phone/PhoneCountries.h"

#include <algorithm>

#include "tests/gallery/GalleryFixture.h"

namespace kindora {
namespace {

class PhoneCountriesTest : public GalleryFixture {
 protected:
  static std::string abroad(std::string_view country, std::string_view number) {
    const auto formatter = LuPhoneFormat::initWithDefaultCountry(country);
    return LuPhoneFormat::strip(internationalPhoneNumber(*formatter, formatter->format(number)));
  }

  const std::vector<PhoneCountry> countries = phoneCountries(*LuPhoneFormat::init());
};

TEST_F(PhoneCountriesTest, AreSortedAndNamed) {
  ASSERT_GT(countries.size(), 200U);
  EXPECT_TRUE(std::is_sorted(countries.begin(), countries.end(), [&](auto& a, auto& b) {
    return fakes.text->compare(a.name, b.name) < 0;
  }));
  EXPECT_EQ(std::count(countries.begin(), countries.end(), PhoneCountry{"de", "Germany", "49"}), 1);
  EXPECT_EQ(std::count(countries.begin(), countries.end(), PhoneCountry{"ca", "Canada", "1"}), 1);
}

TEST_F(PhoneCountriesTest, AreFoundByNameAndByCallingCode) {
  const auto names = [&](std::string_view text) {
    std::vector<std::string> found;
    for (const auto& country : countriesMatching(countries, text)) found.push_back(country.name);
    return found;
  };
  EXPECT_EQ(names("gERMa"), std::vector<std::string>{"Germany"});
  EXPECT_EQ(names("+49"), std::vector<std::string>{"Germany"});
  EXPECT_EQ(names("358"), names("+358"));
  EXPECT_EQ(names("").size(), countries.size());
  EXPECT_TRUE(names("nowhere at all").empty());
}

TEST_F(PhoneCountriesTest, ANumberFromAbroadLosesItsTrunkPrefix) {
  EXPECT_EQ(abroad("gb", "02071234567"), "+442071234567");
  EXPECT_EQ(abroad("us", "4155552671"), "+14155552671");
  EXPECT_EQ(abroad("fr", "0142345678"), "+33142345678");
}

TEST_F(PhoneCountriesTest, AnInternationalNumberStaysWhatItIs) {
  EXPECT_EQ(abroad("us", "+442071234567"), "+442071234567");
  EXPECT_EQ(abroad("us", "011442071234567"), "+442071234567");
}

TEST_F(PhoneCountriesTest, WhatIsNotWholeHasNoInternationalForm) {
  EXPECT_EQ(abroad("us", "415555"), "");
  EXPECT_EQ(abroad("us", ""), "");
}

}  // namespace
}  // namespace kindora
