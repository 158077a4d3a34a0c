// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/SourceText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kSample = R"(# A plan
code 44
countries gb gg
trunk 0 9
access 00
set 2
  20  both  "(n##) #### ####"   # London
  30-39  any  "#### ### ####"
set 1
  7  intl  "c ###" byte8=1 otherFlag=2 prefixLen=3 flag12=130 flag13=255

code 39
countries it
)";

TEST(SourceText, EveryPartIsRead) {
  const SourceText text = parseSource(kSample, "sample");
  ASSERT_THAT(text.problems, IsEmpty());
  ASSERT_EQ(text.blocks.size(), 2u);
  EXPECT_EQ(text.blocks[0].place, "sample:2");
  const CallingCodeInfo& plan = text.blocks[0].plan;
  EXPECT_EQ(plan.callingCode, "44");
  EXPECT_THAT(plan.countries, ElementsAre("gb", "gg"));
  EXPECT_THAT(plan.trunkPrefixes, ElementsAre("0", "9"));
  EXPECT_THAT(plan.intlPrefixes, ElementsAre("00"));
  ASSERT_EQ(plan.ruleSets.size(), 2u);
  EXPECT_EQ(plan.ruleSets[0].matchLen, 2);
  EXPECT_EQ(plan.ruleSets[0].rules.at(0).description(),
            "Rule: { minVal: 20, maxVal: 20, byte8: 0, maxLen: 10, nFlag: 0, prefixLen: 0, flag12: "
            "3, flag13: 0, format: (n##) #### #### }");
  EXPECT_EQ(plan.ruleSets[0].rules.at(1).minVal, 30);
  EXPECT_EQ(plan.ruleSets[0].rules.at(1).maxVal, 39);
  EXPECT_EQ(plan.ruleSets[0].rules.at(1).flag12, 0);
  EXPECT_EQ(plan.ruleSets[1].rules.at(0).description(),
            "Rule: { minVal: 7, maxVal: 7, byte8: 1, maxLen: 3, nFlag: 2, prefixLen: 3, flag12: "
            "130, flag13: 255, format: c ### }");
  EXPECT_THAT(text.blocks[1].plan.countries, ElementsAre("it"));
}

TEST(SourceText, WrittenAndReadAgainItIsTheSame) {
  const SourceText once = parseSource(kSample, "sample");
  const std::string written = writeSource(once.blocks);
  const SourceText twice = parseSource(written, "written");
  ASSERT_THAT(twice.problems, IsEmpty());
  EXPECT_EQ(writeSource(twice.blocks), written);
  ASSERT_EQ(twice.blocks.size(), once.blocks.size());
  for (std::size_t i = 0; i < once.blocks.size(); ++i) {
    EXPECT_EQ(twice.blocks[i].plan.description(), once.blocks[i].plan.description());
  }
}

TEST(SourceText, RangesAreWrittenWithAllComparedDigits) {
  const SourceText text = parseSource("code 44\nset 3\n7-42 any \"####\"\n", "sample");
  EXPECT_EQ(writeSource(text.blocks), "code 44\nset 3\n  007-042  any  \"####\"\n");
}

TEST(SourceText, PatternsMayHoldQuotesBackslashesAndCommentSigns) {
  const SourceText text = parseSource("code 44\nset 1\n1 any \"#\\\"\\\\ #\"\n", "sample");
  ASSERT_THAT(text.problems, IsEmpty());
  EXPECT_EQ(text.blocks[0].plan.ruleSets[0].rules[0].format, "#\"\\ #");
  EXPECT_EQ(parseSource(writeSource(text.blocks), "again").blocks[0].plan.description(),
            text.blocks[0].plan.description());
}

TEST(SourceText, BoundsReachToTheGreatestOf32Bits) {
  const SourceText text = parseSource("code 44\nset 9\n0-4294967295 any \"#\"\n", "sample");
  ASSERT_EQ(text.problems.size(), 1u);
  EXPECT_EQ(text.problems[0].reason, "the range from 0 to -1 is empty");
}

TEST(SourceText, LinesMayEndWithCarriageReturns) {
  EXPECT_THAT(parseSource("code 44\r\ncountries gb\r\n", "sample").problems, IsEmpty());
}

TEST(SourceText, AllProblemsAreReported) {
  const SourceText text = parseSource("set 1\ncode 4444\nfoo\n", "bad");
  EXPECT_THAT(text.problems,
              ElementsAre(Problem{"bad:1", "the file begins with a calling code"},
                          Problem{"bad:2", "\"4444\" is no calling code of at most three digits"},
                          Problem{"bad:3", "\"foo\" is no keyword"}));
}

struct Refused {
  const char* name;
  const char* line;
  const char* reason;
  friend std::ostream& operator<<(std::ostream& out, const Refused& row) { return out << row.name; }
};

class SourceTextRefuses : public ::testing::TestWithParam<Refused> {};

TEST_P(SourceTextRefuses, TheLineWithItsReason) {
  const std::string line = GetParam().line;
  const SourceText text = parseSource("code 44\nset 2\n" + line + "\n", "bad");
  EXPECT_THAT(text.problems, ElementsAre(Problem{"bad:3", GetParam().reason}));
}

const Refused kRefused[] = {
    {"CodeWithoutNumber", "code", "a block has one calling code"},
    {"CodeWithTwoNumbers", "code 1 2", "a block has one calling code"},
    {"CodeOfLetters", "code 4x", "\"4x\" is no calling code of at most three digits"},
    {"CodeWithoutDigits", "code \"\"", "\"\" is no calling code of at most three digits"},
    {"TrunkPrefixOfLetters", "trunk 0 x", "\"x\" is no prefix of digits"},
    {"AccessPrefixWithoutDigits", "access \"\" 00", "\"\" is no prefix of digits"},
    {"CountryInUpperCase", "countries GB", "\"GB\" is no lower-case country code of two letters"},
    {"CountryOfThreeLetters", "countries gbr",
     "\"gbr\" is no lower-case country code of two letters"},
    {"CountryTwice", "countries gb gb", "\"gb\" has the calling code 44 already"},
    {"SetWithoutDigits", "set", "a set has one number of leading digits"},
    {"SetOfNoNumber", "set x", "\"x\" is no number from 0 to 65535"},
    {"SetOfTooMany", "set 65536", "\"65536\" is no number from 0 to 65535"},
    {"RuleWithoutPattern", "20 any", "a rule is a range, a prefix and a pattern in quotes"},
    {"PatternWithoutQuotes", "20 any ##", "a rule is a range, a prefix and a pattern in quotes"},
    {"PatternThatDoesNotEnd", "20 any \"##", "the pattern does not end"},
    {"UnknownPrefix", "20 both? \"##\"", "\"both?\" is none of any, trunk, intl and both"},
    {"RangeOfNoNumber", "2x any \"##\"", "\"2x\" is no number from 0 to 4294967295"},
    {"RangeWithoutEnd", "20- any \"##\"", "\"\" is no number from 0 to 4294967295"},
    {"RangeBeyond32Bits", "4294967296 any \"##\"",
     "\"4294967296\" is no number from 0 to 4294967295"},
    {"RangeBackwards", "30-20 any \"##\"", "the range from 30 to 20 is empty"},
    {"UnknownField", "20 any \"##\" x=1", "\"x=1\" is no field of a rule"},
    {"FieldWithoutValue", "20 any \"##\" byte8", "\"byte8\" is no field of a rule"},
    {"FieldBeyondAByte", "20 any \"##\" byte8=256", "\"256\" is no number from 0 to 255"},
    {"PatternWithTooFewPlaces", "20 any \"##\" maxLen=3",
     "\"##\" has room for 2 digits, not for 3"},
    {"OptionalPartNotClosed", "20 any \"[[##\"", "\"[[\" without \"]]\" in \"[[##\""},
};
INSTANTIATE_TEST_SUITE_P(Table, SourceTextRefuses, ::testing::ValuesIn(kRefused),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SourceText, PlacesInAnOptionalPartDoNotCount) {
  EXPECT_THAT(parseSource("code 44\nset 1\n1 any \"#[[#]]#\" maxLen=2\n", "sample").problems,
              IsEmpty());
}

}  // namespace
}  // namespace kindora
