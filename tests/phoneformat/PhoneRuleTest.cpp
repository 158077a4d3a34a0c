// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneRule.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kindora {
namespace {

struct Expansion {
  const char* name;
  const char* pattern;
  const char* digits;
  PrefixText intl;
  PrefixText trunk;
  const char* expected;
  friend std::ostream& operator<<(std::ostream& out, const Expansion& row) {
    return out << row.name;
  }
};

class PhoneRuleExpansion : public ::testing::TestWithParam<Expansion> {};

TEST_P(PhoneRuleExpansion, GivesTheExpectedText) {
  const Expansion& row = GetParam();
  const PhoneRule rule{.format = row.pattern};
  EXPECT_EQ(rule.formatIntlPrefixTrunkPrefix(row.digits, row.intl, row.trunk), row.expected);
}

constexpr const char* kNorthAmerican = "(###) ###-####";
constexpr const char* kBracketedTrunk = "c (n##) ####";
const Expansion kExpansions[] = {
    {"PartOfTheSecondGroup", kNorthAmerican, "41555", {}, {}, "(415) 55"},
    {"OneDigitMissingInBrackets", kNorthAmerican, "41", {}, {}, "(41 )"},
    {"TwoDigitsMissingInBrackets", kNorthAmerican, "4", {}, {}, "(4  )"},
    {"BracketClosesWithoutTrailingBlank", kNorthAmerican, "415", {}, {}, "(415)"},
    {"NoDigitsGiveNothing", kNorthAmerican, "", {}, {}, ""},
    {"DigitsBeyondThePatternAreLeftOut", "##-##", "12345", {}, {}, "12-34"},
    {"TrailingLiteralsAreLeftOut", "##-##", "12", {}, {}, "12"},
    {"CallingCodeWithoutPlaceGoesInFrontWithSpace", kNorthAmerican, "41", "1", {}, "1 (41 )"},
    {"TrunkWithoutPlaceGoesInFrontWithoutSpace", kNorthAmerican, "41", {}, "0", "0(41 )"},
    {"BothWithoutPlaceGiveTheCallingCodeOnly", "## ##", "1234", "44", "0", "44 12 34"},
    {"PlacedCallingCodeLetsTheTrunkInFront", "c ## ##", "1234", "44", "0", "044 12 34"},
    {"NeitherPrefixWhereBothHavePlaces", kBracketedTrunk, "2071", {}, {}, "(20) 71"},
    {"CallingCodeWhereBothHavePlaces", kBracketedTrunk, "2071", "44", {}, "44 (20) 71"},
    {"TrunkWhereBothHavePlaces", kBracketedTrunk, "2071", {}, "0", "(020) 71"},
    {"NoLeadingSpaceWithoutCallingCode", "c ###", "12", {}, {}, "12"},
    {"NoSpaceAfterAnAbsentTrunk", "n ### ##", "1234", {}, {}, "123 4"},
    {"SpaceAfterAGivenTrunk", "n ### ##", "1234", {}, "8", "8 123 4"},
    {"OnlyASpaceIsDroppedAfterAnAbsentPrefix", "c-###", "123", {}, {}, "-123"},
    {"OnlyTheSpaceRightBehindIsDropped", "c  ###", "123", {}, {}, " 123"},
    {"SpaceInFrontOfThePatternStays", " ###", "12", {}, {}, " 12"},
    {"BracketAfterAnAbsentCallingCode", "c (###)", "41", {}, {}, "(41 )"},
    {"OpenBracketWithoutDigitsFillsNothing", "## (##)", "12", {}, {}, "12"},
    {"ClosingBracketWithoutOpenOneNeedsDigits", "##) ##", "12", {}, {}, "12"},
    {"ClosingEndsTheFilling", "(##) ##", "1", {}, {}, "(1 )"},
    {"SecondBracketOpensAgain", "(##) (##)", "123", {}, {}, "(12) (3 )"},
    {"LiteralsInsideOpenBracketsNeedDigits", "(#-#)", "1", {}, {}, "(1 )"},
    {"StarsAndHashesAreDigitsToo", "## ##", "*6#7", {}, {}, "*6 #7"},
    {"EmptyPatternWithCallingCode", "", "12", "44", {}, "44 "},
    {"EmptyPatternWithTrunk", "", "12", {}, "0", "0"},
    {"LettersOtherThanCAndNAreLiterals", "#x#", "12", {}, {}, "1x2"},
};
INSTANTIATE_TEST_SUITE_P(Table, PhoneRuleExpansion, ::testing::ValuesIn(kExpansions),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PhoneRule, TrunkFlagIsTheFirstBitAndIntlFlagTheSecond) {
  EXPECT_TRUE(PhoneRule{.flag12 = 1}.hasTrunkPrefix());
  EXPECT_FALSE(PhoneRule{.flag12 = 1}.hasIntlPrefix());
  EXPECT_FALSE(PhoneRule{.flag12 = 2}.hasTrunkPrefix());
  EXPECT_TRUE(PhoneRule{.flag12 = 2}.hasIntlPrefix());
}

TEST(PhoneRule, OtherFlagBitsMeanNothing) {
  EXPECT_FALSE(PhoneRule{.flag12 = 0x84}.hasTrunkPrefix());
  EXPECT_FALSE(PhoneRule{.flag12 = 0x84}.hasIntlPrefix());
}

TEST(PhoneRule, DescriptionNamesEveryFieldAndCallsTheOtherFlagNFlag) {
  const PhoneRule rule{.minVal = -1,
                       .maxVal = 2,
                       .byte8 = 3,
                       .maxLen = 4,
                       .otherFlag = 5,
                       .prefixLen = 6,
                       .flag12 = 7,
                       .flag13 = 8,
                       .format = "## ##"};
  EXPECT_EQ(rule.description(),
            "Rule: { minVal: -1, maxVal: 2, byte8: 3, maxLen: 4, nFlag: 5, prefixLen: 6, flag12: "
            "7, flag13: 8, format: ## ## }");
}

}  // namespace
}  // namespace kindora
