// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/CallingCodeInfo.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kindora {
namespace {

PhoneRule oneDigitRule(std::int32_t digit, std::int32_t maxLen, int flags, std::string format) {
  PhoneRule rule;
  rule.minVal = rule.maxVal = digit;
  rule.maxLen = maxLen;
  rule.flag12 = flags;
  rule.format = std::move(format);
  return rule;
}

RuleSet oneDigitSet(PhoneRule rule) {
  RuleSet set;
  set.matchLen = 1;
  set.append(std::move(rule));
  return set;
}

CallingCodeInfo plan() {
  CallingCodeInfo info;
  info.countries = {"gg", "gb"};
  info.callingCode = "44";
  info.trunkPrefixes = {"0", "01"};
  info.intlPrefixes = {"00", "001"};
  info.ruleSets.push_back(oneDigitSet(oneDigitRule(2, 4, 0, "## ##")));
  return info;
}

TEST(CallingCodeInfo, FirstPrefixInTheListWinsNotTheLongest) {
  EXPECT_EQ(plan().matchingTrunkCode("0123"), "0");
  EXPECT_EQ(plan().matchingAccessCode("00123"), "00");
}

TEST(CallingCodeInfo, NoPrefixIsNone) {
  EXPECT_EQ(plan().matchingTrunkCode("123"), std::nullopt);
  EXPECT_EQ(plan().matchingAccessCode("0"), std::nullopt);
  EXPECT_EQ(plan().matchingAccessCode(""), std::nullopt);
}

TEST(CallingCodeInfo, OwnCallingCodeIsTestedBeforeTheTrunk) {
  CallingCodeInfo info = plan();
  info.callingCode = "1";
  info.trunkPrefixes = {"1"};
  EXPECT_EQ(info.format("12345"), "1 23 45");
}

TEST(CallingCodeInfo, TrunkIsTakenOff) {
  EXPECT_EQ(plan().format("02345"), "023 45");
  EXPECT_TRUE(plan().isValidPhoneNumber("02345"));
}

TEST(CallingCodeInfo, AllSetsAreTriedWithThePrefixRequiredFirst) {
  CallingCodeInfo info = plan();
  info.ruleSets.push_back(oneDigitSet(oneDigitRule(2, 4, PhoneRule::kIntlBit, "#-###")));
  EXPECT_EQ(info.format("442345"), "44 2-345");
  EXPECT_EQ(info.format("2345"), "23 45");
}

// Sets for one digit and one kind of number each; 9 is the last one's alone.
CallingCodeInfo planOfSets(std::size_t count) {
  CallingCodeInfo info = plan();
  info.ruleSets.clear();
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const auto number = static_cast<std::int32_t>(i);
    info.ruleSets.push_back(oneDigitSet(
        oneDigitRule(number * 7 % 9, 1 + number % 5, number % 4, std::to_string(i) + " #####")));
    info.ruleSets.back().matchLen = 1 + number % 3 / 2;
  }
  if (count > 0) info.ruleSets.push_back(oneDigitSet(oneDigitRule(9, 4, 0, "last ####")));
  return info;
}

TEST(CallingCodeInfo, IndexFindsWhatAScanFinds) {
  for (const std::size_t count : {0, 1, 3, 20, 63, 64, 65, 90}) {
    const CallingCodeInfo scanned = planOfSets(count);
    CallingCodeInfo indexed = scanned;
    indexed.buildIndex();
    std::vector<std::string> numbers{""};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::string number = numbers[i];
      for (const std::string& text : {number, "44" + number, "0" + number}) {
        EXPECT_EQ(indexed.format(text), scanned.format(text)) << text << " in " << count;
        EXPECT_EQ(indexed.isValidPhoneNumber(text), scanned.isValidPhoneNumber(text))
            << text << " in " << count;
      }
      if (number.size() == 4) continue;
      for (const char ch : std::string_view("0359*")) numbers.push_back(number + ch);
    }
    EXPECT_EQ(indexed.format("9035"), count == 0 ? "9035" : "last 9035") << count;
    EXPECT_EQ(indexed.isValidPhoneNumber("9035"), count > 0) << count;
    const std::string tooLong(40, '7');
    EXPECT_EQ(indexed.format(tooLong), scanned.format(tooLong));
  }
}

TEST(CallingCodeInfo, ACopyMayBeChangedAndFollowsItsOwnSets) {
  CallingCodeInfo indexed = plan();
  indexed.buildIndex();
  CallingCodeInfo copy = indexed;
  copy.ruleSets[0] = oneDigitSet(oneDigitRule(9, 4, 0, "#-###"));
  EXPECT_EQ(copy.format("9345"), "9-345");
  EXPECT_EQ(indexed.format("2345"), "23 45");
}

TEST(CallingCodeInfo, WhatGoesInFrontStaysInFront) {
  EXPECT_EQ(plan().format("2345", "00 "), "00 23 45");
  EXPECT_EQ(plan().format("442345", "+"), "+44 23 45");
  EXPECT_EQ(plan().format("449999", "+"), "+44 9999");
  EXPECT_EQ(plan().format("", "+"), "+");
}

TEST(CallingCodeInfo, DigitsThatFitNothingComeBackBehindTheCallingCode) {
  EXPECT_EQ(plan().format("449999"), "44 9999");
  EXPECT_EQ(plan().format("44"), "44");
}

TEST(CallingCodeInfo, NationalDigitsThatFitNothingComeBackUnchanged) {
  EXPECT_EQ(plan().format("09999"), "09999");
  EXPECT_EQ(plan().format("9999"), "9999");
  EXPECT_EQ(plan().format(""), "");
}

TEST(CallingCodeInfo, WhatFitsNothingIsNotValid) {
  EXPECT_FALSE(plan().isValidPhoneNumber("449999"));
  EXPECT_FALSE(plan().isValidPhoneNumber("9999"));
  EXPECT_FALSE(plan().isValidPhoneNumber(""));
}

TEST(CallingCodeInfo, DescriptionSortsCountriesAndKeepsTheOrderOfLists) {
  EXPECT_EQ(plan().description(),
            "CountryInfo { countries: (gb, gg), code: 44, trunkPrefixes: (0, 01), intlPrefixes: "
            "(00, 001), rule sets: (" +
                plan().ruleSets[0].description() + ") }");
  EXPECT_EQ(CallingCodeInfo().description(),
            "CountryInfo { countries: (), code: , trunkPrefixes: (), intlPrefixes: (), rule sets: "
            "() }");
}

}  // namespace
}  // namespace kindora
