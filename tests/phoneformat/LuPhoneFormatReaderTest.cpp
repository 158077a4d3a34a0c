// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What the formatter makes of the bytes of a file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "phoneformat/LuPhoneFormat.h"
#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

PhoneFormatData fileWith(const RawBlock& block) { return handMadeFile({block}); }

RawBlock oneRule(RawRule rule) { return {"44", {"gb"}, {"0"}, {"00"}, {{1, {std::move(rule)}}}}; }

TEST(LuPhoneFormatReader, ValuesAreReadLeastSignificantByteFirst) {
  const LuPhoneFormat formatter(Bytes().u8(1).u8(2).u8(3).u8(4).data, "");
  EXPECT_EQ(formatter.value32(0), 0x04030201u);
  EXPECT_EQ(formatter.value16(1), 0x0302u);
  EXPECT_EQ(formatter.value16BE(1), 0x0203u);
}

TEST(LuPhoneFormatReader, ValueThatEndsWithTheFileIsRead) {
  const LuPhoneFormat formatter(Bytes().u32(0).u32(0x12345678).data, "");
  EXPECT_EQ(formatter.value32(4), 0x12345678u);
  EXPECT_EQ(formatter.value16(6), 0x1234u);
  EXPECT_EQ(formatter.value16BE(6), 0x3412u);
}

TEST(LuPhoneFormatReader, ValueBeyondTheEndIsZero) {
  const LuPhoneFormat formatter(Bytes().u32(0).u32(0xFFFFFFFF).data, "");
  EXPECT_EQ(formatter.value32(5), 0u);
  EXPECT_EQ(formatter.value16(7), 0u);
  EXPECT_EQ(formatter.value16BE(7), 0u);
  EXPECT_EQ(formatter.value32(1000), 0u);
}

TEST(LuPhoneFormatReader, OffsetsNearTheGreatestDoNotWrapIntoTheFile) {
  // No byte is zero, so that whatever came from the front would show.
  const LuPhoneFormat formatter(Bytes().u32(0xFFFFFFFF).u32(0xFFFFFFFF).data, "");
  EXPECT_EQ(formatter.value32(0xFFFFFFFE), 0u);
  EXPECT_EQ(formatter.value16(0xFFFFFFFF), 0u);
  EXPECT_EQ(formatter.value16BE(0xFFFFFFFF), 0u);
}

TEST(LuPhoneFormatReader, EmptyFileKnowsNothing) {
  LuPhoneFormat formatter({}, "gb");
  EXPECT_EQ(formatter.value32(0), 0u);
  EXPECT_EQ(formatter.defaultCallingCode(), std::nullopt);
  EXPECT_EQ(formatter.callingCodeInfo("44"), nullptr);
  EXPECT_EQ(formatter.format("(020) x"), "(020) x");
  EXPECT_FALSE(formatter.isPhoneNumberValid("02071234567"));
}

TEST(LuPhoneFormatReader, CountOfZeroOrBelowMeansNoEntries) {
  for (const std::uint32_t count : {0u, 0xFFFFFFFFu, 0x80000000u}) {
    PhoneFormatData data = fileWith(oneRule({1, 1, 1, 0, "#"}));
    for (int i = 0; i < 4; ++i) data[i] = static_cast<std::byte>(count >> (8 * i));
    EXPECT_EQ(LuPhoneFormat(data, "gb").defaultCallingCode(), std::nullopt) << count;
  }
}

TEST(LuPhoneFormatReader, CountBeyondTheFileStopsAtItsEnd) {
  PhoneFormatData data = fileWith(oneRule({1, 1, 1, 0, "#"}));
  data[3] = std::byte{0x7F};
  EXPECT_EQ(LuPhoneFormat(data, "gb").defaultCallingCode(), "44");
}

TEST(LuPhoneFormatReader, CountriesThatShareACodeGetOneRecordWithAllOfThem) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "ca");
  EXPECT_THAT(formatter.callingCodeInfo("1")->countries, ElementsAre("ca", "us"));
  EXPECT_EQ(formatter.callingCodeForCountryCode("us"), "1");
  EXPECT_EQ(formatter.callingCodeForCountryCode("ca"), "1");
}

TEST(LuPhoneFormatReader, LastOffsetOfASharedCodeWins) {
  const Bytes first = rawBlock({"7", {}, {"1"}, {}, {}});
  const Bytes second = rawBlock({"7", {}, {"2"}, {}, {}});
  Bytes file;
  file.u32(2).padded("7", 4).padded("aa", 4).u32(0).padded("7", 4).padded("bb", 4);
  file.u32(first.size()).append(first).append(second);
  LuPhoneFormat formatter(file.data, "");
  EXPECT_THAT(formatter.callingCodeInfo("7")->trunkPrefixes, ElementsAre("2"));
}

TEST(LuPhoneFormatReader, LastCallingCodeOfACountryWins) {
  const RawBlock seven{"7", {"aa"}, {}, {}, {{1, {{1, 1, 2, 0, "#-#"}}}}};
  const RawBlock eight{"8", {"aa"}, {}, {}, {{1, {{1, 1, 2, 0, "#/#"}}}}};
  LuPhoneFormat eightLast(handMadeFile({seven, eight}), "aa");
  EXPECT_EQ(eightLast.defaultCallingCode(), "8");
  EXPECT_EQ(eightLast.format("12"), "1/2");
  LuPhoneFormat sevenLast(handMadeFile({eight, seven}), "aa");
  EXPECT_EQ(sevenLast.defaultCallingCode(), "7");
  EXPECT_EQ(sevenLast.format("12"), "1-2");
}

TEST(LuPhoneFormatReader, CodesOfFourBytesNeedNoZero) {
  LuPhoneFormat formatter(handMadeFile({{"1234", {"abcd"}, {}, {}, {}}}), "");
  EXPECT_EQ(formatter.callingCodeForCountryCode("abcd"), "1234");
}

TEST(LuPhoneFormatReader, DefaultCountryInUpperCaseFindsNoDefaultRecord) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "US");
  EXPECT_EQ(formatter.format("4155552671"), "4155552671");
  EXPECT_EQ(formatter.defaultCallingCode(), "1");
}

TEST(LuPhoneFormatReader, RecordIsMadeOnceAndKept) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "us");
  const CallingCodeInfo* const first = formatter.callingCodeInfo("44");
  ASSERT_NE(first, nullptr);
  formatter.callingCodeInfo("39");
  formatter.callingCodeInfo("81");
  EXPECT_EQ(formatter.callingCodeInfo("44"), first);
}

TEST(LuPhoneFormatReader, UnknownCodeHasNoRecord) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "us");
  EXPECT_EQ(formatter.callingCodeInfo("45"), nullptr);
  EXPECT_EQ(formatter.callingCodeInfo(""), nullptr);
}

TEST(LuPhoneFormatReader, DamagedBlockHarmsNobodyElse) {
  Bytes file;
  const Bytes good = rawBlock(samplePlans()[0]);
  file.u32(2).padded("1", 4).padded("us", 4).u32(0).padded("44", 4).padded("gb", 4);
  file.u32(0x7FFFFFF0).append(good);
  LuPhoneFormat formatter(file.data, "us");
  EXPECT_EQ(formatter.format("4155552671"), "(415) 555-2671");
  EXPECT_TRUE(formatter.callingCodeInfo("44")->ruleSets.empty());
  EXPECT_EQ(formatter.format("+442071234567"), "+44 2071234567");
}

TEST(LuPhoneFormatReader, PrefixListsFollowEachOther) {
  LuPhoneFormat formatter(fileWith({"44", {"gb"}, {"0", "9"}, {"00", "010"}, {}}), "gb");
  EXPECT_THAT(formatter.callingCodeInfo("44")->trunkPrefixes, ElementsAre("0", "9"));
  EXPECT_THAT(formatter.callingCodeInfo("44")->intlPrefixes, ElementsAre("00", "010"));
}

TEST(LuPhoneFormatReader, AccessPrefixesFollowAnEmptyTrunkListDirectly) {
  LuPhoneFormat formatter(fileWith({"44", {"gb"}, {}, {"00"}, {}}), "gb");
  EXPECT_THAT(formatter.callingCodeInfo("44")->trunkPrefixes, IsEmpty());
  EXPECT_THAT(formatter.callingCodeInfo("44")->intlPrefixes, ElementsAre("00"));
}

TEST(LuPhoneFormatReader, EveryFieldOfARuleIsRead) {
  LuPhoneFormat formatter(
      fileWith(oneRule({0x01020304, 0x05060708, 200, 255, "# ##", 201, 202, 203, 204})), "gb");
  const RuleSet& set = formatter.callingCodeInfo("44")->ruleSets.at(0);
  EXPECT_EQ(set.matchLen, 1);
  const PhoneRule& rule = set.rules.at(0);
  EXPECT_EQ(rule.minVal, 0x01020304);
  EXPECT_EQ(rule.maxVal, 0x05060708);
  EXPECT_EQ(rule.byte8, 201);
  EXPECT_EQ(rule.maxLen, 200);
  EXPECT_EQ(rule.otherFlag, 202);
  EXPECT_EQ(rule.prefixLen, 203);
  EXPECT_EQ(rule.flag12, 255);
  EXPECT_EQ(rule.flag13, 204);
  EXPECT_EQ(rule.format, "# ##");
  EXPECT_TRUE(set.hasRuleWithIntlPrefix);
  EXPECT_TRUE(set.hasRuleWithTrunkPrefix);
}

TEST(LuPhoneFormatReader, GreatBoundsBecomeNegative) {
  LuPhoneFormat formatter(fileWith(oneRule({0xFFFFFFFF, 0x80000000, 1, 0, "#"})), "gb");
  const PhoneRule& rule = formatter.callingCodeInfo("44")->ruleSets[0].rules[0];
  EXPECT_EQ(rule.minVal, -1);
  EXPECT_EQ(rule.maxVal, INT32_MIN);
}

TEST(LuPhoneFormatReader, SetsFollowEachOther) {
  LuPhoneFormat formatter(
      fileWith({"44",
                {"gb"},
                {},
                {},
                {{1, {{1, 2, 3, 0, "a"}, {3, 4, 5, 0, "b"}}}, {7, {}}, {2, {{5, 6, 7, 2, "d"}}}}}),
      "gb");
  const auto& sets = formatter.callingCodeInfo("44")->ruleSets;
  ASSERT_EQ(sets.size(), 3u);
  EXPECT_EQ(sets[0].rules.at(1).format, "b");
  EXPECT_EQ(sets[1].matchLen, 7);
  EXPECT_TRUE(sets[1].rules.empty());
  EXPECT_EQ(sets[2].matchLen, 2);
  EXPECT_EQ(sets[2].rules.at(0).format, "d");
  EXPECT_TRUE(sets[2].hasRuleWithIntlPrefix);
  EXPECT_FALSE(sets[0].hasRuleWithIntlPrefix);
}

TEST(LuPhoneFormatReader, OptionalPartIsDropped) {
  LuPhoneFormat formatter(fileWith(oneRule({1, 1, 3, 0, "#[[ x ]]##"})), "gb");
  EXPECT_EQ(formatter.callingCodeInfo("44")->ruleSets[0].rules[0].format, "###");
}

TEST(LuPhoneFormatReader, OnlyTheFirstOptionalPartIsDropped) {
  LuPhoneFormat formatter(fileWith(oneRule({1, 1, 3, 0, "a[[x]]b[[y]]c"})), "gb");
  EXPECT_EQ(formatter.callingCodeInfo("44")->ruleSets[0].rules[0].format, "ab[[y]]c");
}

TEST(LuPhoneFormatReader, ClosingPairBeforeTheOpeningOneIsTheFirstThatCounts) {
  LuPhoneFormat formatter(fileWith(oneRule({1, 1, 3, 0, "a]]b[[c]]d"})), "gb");
  EXPECT_EQ(formatter.callingCodeInfo("44")->ruleSets[0].rules[0].format, "a]]bb[[c]]d");
}

TEST(LuPhoneFormatReader, UnclosedOptionalPartTakesTheRestWithIt) {
  LuPhoneFormat formatter(fileWith(oneRule({1, 1, 3, 0, "##[[#"})), "gb");
  EXPECT_EQ(formatter.callingCodeInfo("44")->ruleSets[0].rules[0].format, "##");
}

TEST(LuPhoneFormatReader, FormatStringsStayEmpty) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "gb");
  EXPECT_TRUE(formatter.callingCodeInfo("44")->formatStrings.empty());
}

TEST(LuPhoneFormatReader, BlockOfZerosIsARecordWithoutRules) {
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0).raw(std::string(64, '\0'));
  LuPhoneFormat formatter(file.data, "gb");
  const CallingCodeInfo* const info = formatter.callingCodeInfo("44");
  ASSERT_NE(info, nullptr);
  EXPECT_TRUE(info->ruleSets.empty());
  EXPECT_TRUE(info->trunkPrefixes.empty());
  EXPECT_TRUE(info->intlPrefixes.empty());
  EXPECT_EQ(formatter.format("020 7x"), "0207");
}

TEST(LuPhoneFormatReader, CountsOfSetsAndRulesBeyondTheFileStopAtItsEnd) {
  Bytes block;
  block.u32(14).u32(0xFFFF).u32(0xFFFF).u8(0).u8(0).u16(1).u16(0xFFFF);
  block.u32(0).u32(9).raw(std::string(8, '\1'));
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0).append(block);
  LuPhoneFormat formatter(file.data, "gb");
  const auto& sets = formatter.callingCodeInfo("44")->ruleSets;
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_EQ(sets[0].rules.size(), 1u);
}

TEST(LuPhoneFormatReader, TextsEndWithTheFile) {
  Bytes file;
  file.u32(1).padded("44", 4).padded("gb", 4).u32(0).u32(0).u32(0).u32(0).raw("01");
  LuPhoneFormat formatter(file.data, "gb");
  EXPECT_THAT(formatter.callingCodeInfo("44")->trunkPrefixes, ElementsAre("01"));
  EXPECT_THAT(formatter.callingCodeInfo("44")->intlPrefixes, IsEmpty());
}

TEST(LuPhoneFormatReader, EveryTruncationOfAFileIsReadWithoutHarm) {
  const PhoneFormatData whole = handMadeFile(samplePlans());
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    LuPhoneFormat formatter(PhoneFormatData(whole.begin(), whole.begin() + size), "gb");
    for (const char* number : {"02071234567", "+14155552671", "00393123456", "+99101112"}) {
      EXPECT_EQ(LuPhoneFormat::strip(formatter.format(number)).empty(), false);
      static_cast<void>(formatter.isPhoneNumberValid(number));
    }
  }
}

}  // namespace
}  // namespace kindora
