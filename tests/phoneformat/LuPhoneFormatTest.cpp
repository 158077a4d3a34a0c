// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/LuPhoneFormat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

TEST(LuPhoneFormat, StripKeepsDigitsPlusStarAndHashInTheirOrder) {
  EXPECT_EQ(LuPhoneFormat::strip("+1 (4a1*5)\t#-2,"), "+141*5#2");
  EXPECT_EQ(LuPhoneFormat::strip(""), "");
}

TEST(LuPhoneFormat, StripDropsDigitsOfOtherScripts) {
  EXPECT_EQ(LuPhoneFormat::strip("\u0661\u0662 1\uFF12"), "1");
}

TEST(LuPhoneFormat, StripDropsBytesThatAreNoText) {
  EXPECT_EQ(LuPhoneFormat::strip(std::string_view("\xFF"
                                                  "1\0"
                                                  "2\x80",
                                                  5)),
            "12");
}

TEST(LuPhoneFormat, CallingCodeOfACountryInAnyCase) {
  const LuPhoneFormat formatter(handMadeFile(samplePlans()), "gb");
  EXPECT_EQ(formatter.callingCodeForCountryCode("US"), "1");
  EXPECT_EQ(formatter.callingCodeForCountryCode("us"), "1");
  EXPECT_EQ(formatter.callingCodeForCountryCode("de"), std::nullopt);
  EXPECT_EQ(formatter.callingCodeForCountryCode(""), std::nullopt);
}

TEST(LuPhoneFormat, CountriesOfACallingCodeWithOrWithoutOnePlus) {
  const LuPhoneFormat formatter(handMadeFile(samplePlans()), "gb");
  EXPECT_THAT(formatter.countriesForCallingCode("44"), Optional(ElementsAre("gb", "gg")));
  EXPECT_THAT(formatter.countriesForCallingCode("+44"), Optional(ElementsAre("gb", "gg")));
  EXPECT_EQ(formatter.countriesForCallingCode("++44"), std::nullopt);
  EXPECT_EQ(formatter.countriesForCallingCode("45"), std::nullopt);
  EXPECT_EQ(formatter.countriesForCallingCode(""), std::nullopt);
}

TEST(LuPhoneFormat, ShortestCallingCodeWins) {
  const RawBlock one{"1", {"aa"}, {}, {}, {}};
  const RawBlock two{"12", {"bb"}, {}, {}, {}};
  const RawBlock three{"123", {"cc"}, {}, {}, {}};
  const RawBlock other{"44", {"dd"}, {}, {}, {}};
  for (const auto& order : {std::vector{one, two, three, other}, {other, three, two, one}}) {
    LuPhoneFormat formatter(handMadeFile(order), "dd");
    for (const char* digits : {"12345", "44", "123", "12", "1", "12*", "1*3"}) {
      const std::string code = digits[0] == '4' ? "44" : "1";
      EXPECT_EQ(formatter.findCallingCodeInfo(digits)->callingCode, code) << digits;
    }
  }
}

TEST(LuPhoneFormat, LongerCallingCodeIsFoundWhereNoneIsShorter) {
  const RawBlock two{"12", {"bb"}, {}, {}, {}};
  const RawBlock three{"123", {"cc"}, {}, {}, {}};
  const RawBlock four{"134", {"dd"}, {}, {}, {}};
  for (const auto& order : {std::vector{two, three, four}, {four, three, two}}) {
    LuPhoneFormat formatter(handMadeFile(order), "dd");
    EXPECT_EQ(formatter.findCallingCodeInfo("1345")->callingCode, "134");
    EXPECT_EQ(formatter.findCallingCodeInfo("12345")->callingCode, "12");
    EXPECT_EQ(formatter.findCallingCodeInfo("1"), nullptr);
  }
}

TEST(LuPhoneFormat, DigitsWithoutCallingCodeFindNoRecord) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "gb");
  EXPECT_EQ(formatter.findCallingCodeInfo(""), nullptr);
  EXPECT_EQ(formatter.findCallingCodeInfo("4"), nullptr);
  EXPECT_EQ(formatter.findCallingCodeInfo("+44"), nullptr);
  EXPECT_EQ(formatter.findCallingCodeInfo("567890"), nullptr);
}

struct Typed {
  const char* name;
  const char* country;
  const char* text;
  const char* formatted;
  bool valid;
  friend std::ostream& operator<<(std::ostream& out, const Typed& row) { return out << row.name; }
};

class LuPhoneFormatTyped : public ::testing::TestWithParam<Typed> {
 protected:
  LuPhoneFormat formatter{handMadeFile(samplePlans()), GetParam().country};
};

TEST_P(LuPhoneFormatTyped, IsLaidOut) {
  EXPECT_EQ(formatter.format(GetParam().text), GetParam().formatted);
}

TEST_P(LuPhoneFormatTyped, IsJudged) {
  EXPECT_EQ(formatter.isPhoneNumberValid(GetParam().text), GetParam().valid);
}

TEST_P(LuPhoneFormatTyped, ItsDigitsAreJudgedTheSame) {
  EXPECT_EQ(formatter.isPhoneNumberValid(LuPhoneFormat::strip(GetParam().text)), GetParam().valid);
}

const Typed kTyped[] = {
    {"Nothing", "us", "", "", false},
    {"LonePlusStays", "us", "+", "+", false},
    {"PlusAndUnknownCodeComeBackUnstripped", "us", "+5 x", "+5 x", false},
    {"CallingCodeAlone", "us", "+1", "+1", false},
    {"ShortestCodeDecides", "gb", "+1234", "+1 234", false},
    {"WholeInternational", "us", "+14155552671", "+1 (415) 555-2671", true},
    {"WholeInternationalWithoutDefault", "", "+1 415 555 2671", "+1 (415) 555-2671", true},
    {"WholeInternationalWithUpperCaseDefault", "US", "+14155552671", "+1 (415) 555-2671", true},
    {"NationalWithUpperCaseDefault", "US", "415 555 2671x", "415 555 2671x", false},
    {"NationalWithoutDefaultKeepsLetters", "", "call me", "call me", false},
    {"LettersVanishWithADefault", "us", "ab", "", false},
    {"Local", "us", "4155", "415-5", false},
    {"LocalWhole", "us", "4155552", "415-5552", true},
    {"OneMoreDigitChangesTheLayout", "us", "41555526", "(415) 555-26", false},
    {"NationalWhole", "us", "4155552671", "(415) 555-2671", true},
    {"NationalTooLongIsOnlyStripped", "us", "415 555 26711x", "41555526711", false},
    {"OwnCodeWithoutPlus", "us", "1555526719", "1 (555) 526-719", false},
    {"OwnCodeBeforeTrunk", "us", "14155552671", "1 (415) 555-2671", true},
    {"InternationalByItsOwnRule", "us", "+442071234567", "+44 20 7123 4567", true},
    {"NationalWithTrunkByItsOwnRule", "gb", "02071234567", "(020) 7123 4567", true},
    {"NationalTrunkAsItIsTyped", "gb", "02", "02", false},
    {"TrunkAndTwoDigits", "gb", "020", "(020)", false},
    {"OwnCodeWithoutPlusIsValid", "gb", "442071234567", "44 20 7123 4567", true},
    {"WithoutTrunkByAnyRule", "gb", "2071234567", "(20) 7123 4567", true},
    {"InternationalTooLong", "us", "+4420712345678", "+44 20712345678", false},
    {"TrunkInFrontOfAPatternWithoutPlace", "it", "0123456", "0123 456", true},
    {"FormattedYetNotValid", "us", "+81312345678", "+81 3 1234 5678", false},
    {"FormattedAndValid", "us", "+81901234567", "+81 90 123 4567", true},
    {"RequiredPassRunsOverAllSetsFirst", "xx", "101112", "1 01 112", true},
    {"RecordWithoutFittingRule", "us", "+999 x", "+99 9", false},
    {"AccessCodeAlone", "us", "011", "011", false},
    {"AccessCodeAndUnknownCode", "us", "0114", "011 4", false},
    {"AccessCodeAndNumber", "us", "011442071234567", "011 44 20 7123 4567", true},
    {"AccessCodeBeforeTrunk", "gb", "0033", "00 33", false},
    {"AccessCodeAndShortNumber", "gb", "001415", "00 1 415", false},
    {"AccessCodeAndPlus", "gb", "00+1415", "00 +1415", false},
    {"StarsAndHashes", "us", "*67", "*67", false},
    {"HashesBetween", "us", "#31#415", "#31#415", false},
    {"PlusInsideIsKept", "us", "4155+", "415-5+", false},
    {"BlanksAndPunctuationVanish", "us", " (415).555/2671 ", "(415) 555-2671", true},
};
INSTANTIATE_TEST_SUITE_P(Table, LuPhoneFormatTyped, ::testing::ValuesIn(kTyped),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LuPhoneFormat, LongInputIsHandledWhole) {
  LuPhoneFormat formatter(handMadeFile(samplePlans()), "us");
  const std::string many(1000, '7');
  EXPECT_EQ(formatter.format(many + " "), many);
  EXPECT_EQ(formatter.format("+44" + many), "+44 " + many);
  EXPECT_EQ(formatter.format(std::string(500, ' ') + "4155552671"), "(415) 555-2671");
}

}  // namespace
}  // namespace kindora
