// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/Decoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

RawBlock oneRule(RawRule rule) { return {"44", {"gb"}, {"0"}, {"00"}, {{1, {std::move(rule)}}}}; }

Problems problemsOf(const PhoneFormatData& data) {
  return decodePhoneFormats(data, "file").problems;
}

Problems problemsOf(RawRule rule) { return problemsOf(handMadeFile({oneRule(std::move(rule))})); }

const std::string kRulePlace = "file: calling code 44, rule set 1, rule 1";

TEST(Decoder, GoodFileHasNoProblems) {
  const SourceText text = decodePhoneFormats(handMadeFile(samplePlans()), "file");
  EXPECT_THAT(text.problems, IsEmpty());
  EXPECT_EQ(text.blocks.size(), samplePlans().size());
}

TEST(Decoder, PatternsKeepTheirOptionalParts) {
  const SourceText text =
      decodePhoneFormats(handMadeFile({oneRule({1, 1, 2, 0, "#[[ x]]#"})}), "file");
  EXPECT_THAT(text.problems, IsEmpty());
  EXPECT_EQ(text.blocks.at(0).plan.ruleSets.at(0).rules.at(0).format, "#[[ x]]#");
}

TEST(Decoder, EmptyFileLacksItsHeader) {
  EXPECT_THAT(problemsOf(PhoneFormatData{}),
              ElementsAre(Problem{
                  "file", "the number of countries at 0 lies outside the file of 0 bytes"}));
}

TEST(Decoder, MoreCountriesThanFitAreReported) {
  EXPECT_THAT(problemsOf(Bytes().u32(2).padded("44", 4).padded("gb", 4).u32(0).data),
              ElementsAre(Problem{"file", "2 countries do not fit into the file of 16 bytes"}));
  EXPECT_THAT(
      problemsOf(Bytes().u32(0xFFFFFFFF).data),
      ElementsAre(Problem{"file", "4294967295 countries do not fit into the file of 4 bytes"}));
}

TEST(Decoder, BlockOutsideTheFileIsReported) {
  EXPECT_THAT(problemsOf(Bytes().u32(1).padded("44", 4).padded("gb", 4).u32(500).data),
              ElementsAre(Problem{"file: calling code 44",
                                  "a block at 516 lies outside the file of 16 bytes"}));
}

TEST(Decoder, CodesWithoutEndOrOfTheWrongFormAreReported) {
  const Problems problems = problemsOf(handMadeFile(
      {{"1234", {"gb"}, {}, {}, {}}, {"1x", {"US"}, {}, {}, {}}, {"", {"de"}, {}, {}, {}}}));
  EXPECT_THAT(
      problems,
      ElementsAre(Problem{"file: country 1", "the calling code \"1234\" does not end"},
                  Problem{"file: country 2", "\"1x\" is no calling code"},
                  Problem{"file: country 2", "\"US\" is no lower-case country code of two letters"},
                  Problem{"file: country 3", "\"\" is no calling code"}));
}

TEST(Decoder, CountryListedTwiceIsReported) {
  EXPECT_THAT(problemsOf(handMadeFile({{"44", {"gb", "gb"}, {}, {}, {}}})),
              ElementsAre(Problem{"file: country 2", "country code \"gb\" came before"}));
}

TEST(Decoder, SharedCodeWithTwoBlocksIsReported) {
  const Problems problems =
      problemsOf(handMadeFile({{"7", {"ru"}, {}, {}, {}}, {"7", {"kz"}, {}, {}, {}}}));
  EXPECT_THAT(problems, ElementsAre(Problem{"file: country 2",
                                            "calling code 7 has a block at 28 and one at 42"}));
}

TEST(Decoder, PrefixesThatDoNotEndBeforeTheRulesAreReported) {
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0);
  file.u32(15).u32(0).u32(0).raw("012").raw("abc");
  EXPECT_THAT(problemsOf(file.data),
              ElementsAre(Problem{"file: calling code 44", "the prefix \"012\" does not end"}));
}

TEST(Decoder, PrefixesThatAreNoDigitsAreReported) {
  EXPECT_THAT(problemsOf(handMadeFile({{"44", {"gb"}, {"0", "x"}, {"0 0"}, {}}})),
              ElementsAre(Problem{"file: calling code 44", "\"x\" is no prefix of digits"},
                          Problem{"file: calling code 44", "\"0 0\" is no prefix of digits"}));
}

TEST(Decoder, RulesThatFillTheirAreaBadlyAreReported) {
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0);
  file.u32(14).u32(9).u32(1).u8(0).u8(0).u16(1).u16(0).raw("12345678");
  EXPECT_THAT(problemsOf(file.data),
              ElementsAre(Problem{"file: calling code 44", "the rule sets take 4 bytes, not 9"}));
}

TEST(Decoder, RulesOutsideTheFileAreReported) {
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0);
  file.u32(14).u32(20).u32(1).u8(0).u8(0).u16(1).u16(1).u32(1).u32(1);
  EXPECT_THAT(problemsOf(file.data),
              ElementsAre(Problem{"file: calling code 44",
                                  "a rule at 42 lies outside the file of 42 bytes"}));
}

TEST(Decoder, EmptyRangeIsReported) {
  EXPECT_THAT(problemsOf({5, 4, 1, 0, "#"}),
              ElementsAre(Problem{kRulePlace, "the range from 5 to 4 is empty"}));
}

TEST(Decoder, OptionalPartNotClosedIsReported) {
  EXPECT_THAT(problemsOf({5, 5, 1, 0, "#[[x"}),
              ElementsAre(Problem{kRulePlace, "\"[[\" without \"]]\" in \"#[[x\""}));
}

TEST(Decoder, PatternWithoutRoomForItsDigitsIsReported) {
  EXPECT_THAT(problemsOf({5, 5, 3, 0, "##"}),
              ElementsAre(Problem{kRulePlace, "\"##\" has room for 2 digits, not for 3"}));
}

TEST(Decoder, PatternThatDoesNotEndIsReported) {
  PhoneFormatData data = handMadeFile({oneRule({5, 5, 2, 0, "##"})});
  data.pop_back();
  EXPECT_THAT(problemsOf(data),
              ElementsAre(Problem{kRulePlace, "the pattern \"##\" does not end"}));
}

TEST(Decoder, PatternOutsideTheFileIsReported) {
  PhoneFormatData data = handMadeFile({oneRule({5, 5, 2, 0, "##"})});
  data[data.size() - 4] = std::byte{0xFF};
  EXPECT_THAT(problemsOf(data), ElementsAre(Problem{kRulePlace, "the pattern \"\" does not end"}));
}

TEST(Decoder, OneDamagedBlockDoesNotHideAnother) {
  PhoneFormatData data = handMadeFile({{"44", {"gb"}, {}, {}, {{1, {{5, 4, 1, 0, "#"}}}}},
                                       {"45", {"dk"}, {}, {}, {{1, {{3, 2, 1, 0, "#"}}}}}});
  const Problems problems = problemsOf(data);
  EXPECT_EQ(problems.size(), 2u);
  EXPECT_THAT(problems, Contains(Problem{"file: calling code 45, rule set 1, rule 1",
                                         "the range from 3 to 2 is empty"}));
}

TEST(Decoder, EveryTruncationIsReportedAndNoneHarms) {
  const PhoneFormatData whole = handMadeFile(samplePlans());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(problemsOf(PhoneFormatData(whole.begin(), whole.begin() + size)).empty()) << size;
  }
}

}  // namespace
}  // namespace kindora
