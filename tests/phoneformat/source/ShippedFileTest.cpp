// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The data file that ships, and its source.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/source/Compiler.h"
#include "phoneformat/source/Decoder.h"

namespace kindora {
namespace {

using ::testing::IsEmpty;

constexpr std::size_t kMostBytes = 172000;
constexpr std::size_t kRegions = 245;

const PhoneFormatData& shipped() {
  static const PhoneFormatData data = readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE).value();
  return data;
}

std::vector<SourceBlock> sourceBlocks() {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(KINDORA_PHONEFORMATS_SOURCE)) {
    paths.push_back(entry.path());
  }
  std::ranges::sort(paths);
  std::vector<SourceBlock> blocks;
  for (const auto& path : paths) {
    std::ifstream stream(path);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    SourceText parsed = parseSource(text, path.filename().string());
    EXPECT_THAT(parsed.problems, IsEmpty());
    std::ranges::move(parsed.blocks, std::back_inserter(blocks));
  }
  return blocks;
}

TEST(ShippedFile, IsWhatItsSourceMakes) {
  const CompiledFile rebuilt = compilePhoneFormats(sourceBlocks());
  EXPECT_THAT(rebuilt.problems, IsEmpty());
  EXPECT_TRUE(rebuilt.data == shipped())
      << "kindora-phoneformat compile resources/phoneformats/source "
         "resources/phoneformats/PhoneFormats.dat";
}

TEST(ShippedFile, HasNoProblemsAndKeepsToItsSize) {
  EXPECT_THAT(decodePhoneFormats(shipped(), "PhoneFormats.dat").problems, IsEmpty());
  EXPECT_LE(shipped().size(), kMostBytes);
}

TEST(ShippedFile, KnowsEveryCountryWithACallingCode) {
  std::size_t countries = 0;
  for (const SourceBlock& block : decodePhoneFormats(shipped(), "").blocks) {
    countries += block.plan.countries.size();
  }
  EXPECT_EQ(countries, kRegions);
}

TEST(ShippedFile, EveryRuleComparesDigitsSoThatAWholeCallingCodeStaysAsItIs) {
  for (const SourceBlock& block : decodePhoneFormats(shipped(), "").blocks) {
    for (const RuleSet& set : block.plan.ruleSets) EXPECT_GT(set.matchLen, 0) << block.place;
  }
}

TEST(ShippedFile, FlagsEveryRuleOfACallingCodeOrNone) {
  for (const SourceBlock& block : decodePhoneFormats(shipped(), "").blocks) {
    std::size_t rules = 0;
    std::size_t flagged = 0;
    for (const RuleSet& set : block.plan.ruleSets) {
      rules += set.rules.size();
      flagged += static_cast<std::size_t>(
          std::ranges::count_if(set.rules, [](const PhoneRule& rule) { return rule.flag12 != 0; }));
    }
    EXPECT_TRUE(flagged == 0 || flagged == rules) << block.place;
  }
}

struct Sequence {
  const char* name;
  const char* country;
  const char* keys;
  // What is shown after each key.
  std::vector<const char*> shown;
  friend std::ostream& operator<<(std::ostream& out, const Sequence& row) {
    return out << row.name;
  }
};

class ShippedFileTyping : public ::testing::TestWithParam<Sequence> {};

TEST_P(ShippedFileTyping, ShowsEachStep) {
  LuPhoneFormat formatter(shipped(), GetParam().country);
  std::string typed;
  std::vector<std::string> shown;
  for (const char* key = GetParam().keys; *key != '\0'; ++key) {
    shown.push_back(formatter.format(typed += *key));
  }
  EXPECT_EQ(shown, std::vector<std::string>(GetParam().shown.begin(), GetParam().shown.end()));
  EXPECT_TRUE(formatter.isPhoneNumberValid(typed));
}

const Sequence kSequences[] = {
    {"NorthAmericanNational",
     "us",
     "4155552671",
     {"4", "41", "415", "415-5", "415-55", "415-555", "415-5552", "(415) 555-26", "(415) 555-267",
      "(415) 555-2671"}},
    {"NorthAmericanFromAbroad",
     "gb",
     "+14155552671",
     {"+", "+1", "+1 4", "+1 41", "+1 415", "+1 415-5", "+1 415-55", "+1 415-555", "+1 415-555-2",
      "+1 415-555-26", "+1 415-555-267", "+1 415-555-2671"}},
    {"BritishNational",
     "gb",
     "02071234567",
     {"0", "02", "020", "020 7", "020 71", "020 712", "020 7123", "020 7123 4", "020 7123 45",
      "020 7123 456", "020 7123 4567"}},
    {"FrenchNational",
     "fr",
     "0612345678",
     {"0", "06", "06 1", "06 12", "06 12 3", "06 12 34", "06 12 34 5", "06 12 34 56",
      "06 12 34 56 7", "06 12 34 56 78"}},
    {"GermanNational",
     "de",
     "03012345678",
     {"0", "03", "030", "030 1", "030 12", "030 123", "030 1234", "030 12345", "030 123456",
      "030 1234567", "030 12345678"}},
    {"RussianNational",
     "ru",
     "89161234567",
     {"8", "89", "891", "8 (916)", "8 (916) 1", "8 (916) 12", "8 (916) 123", "8 (916) 123-4",
      "8 (916) 123-45", "8 (916) 123-45-6", "8 (916) 123-45-67"}},
    {"ArgentinianMobileFromAbroad",
     "us",
     "+5491123456789",
     {"+", "+5", "+54", "+54 9", "+54 91", "+54 911", "+54 9 11 2", "+54 9 11 23", "+54 9 11 234",
      "+54 9 11 2345", "+54 9 11 2345-6", "+54 9 11 2345-67", "+54 9 11 2345-678",
      "+54 9 11 2345-6789"}},
};
INSTANTIATE_TEST_SUITE_P(Table, ShippedFileTyping, ::testing::ValuesIn(kSequences),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ShippedFile, LocalNumbersOfNorthAmericaHaveNoCallingCode) {
  LuPhoneFormat formatter(shipped(), "us");
  EXPECT_TRUE(formatter.isPhoneNumberValid("555-2671"));
  EXPECT_FALSE(formatter.isPhoneNumberValid("+1 555 2671"));
}

struct UnassignedNumber {
  const char* name;
  const char* country;
  const char* typed;
  const char* shown;
  friend std::ostream& operator<<(std::ostream& out, const UnassignedNumber& row) {
    return out << row.name;
  }
};

class ShippedFileUnassigned : public ::testing::TestWithParam<UnassignedNumber> {};

TEST_P(ShippedFileUnassigned, IsLaidOutYetNotValid) {
  LuPhoneFormat formatter(shipped(), GetParam().country);
  EXPECT_EQ(formatter.format(GetParam().typed), GetParam().shown);
  EXPECT_FALSE(formatter.isPhoneNumberValid(GetParam().typed));
}

const UnassignedNumber kUnassignedNumbers[] = {
    {"AreaCode", "us", "491555526", "(491) 555-526"},
    {"AreaCodeOfAWholeNumber", "us", "4915555261", "(491) 555-5261"},
    {"DigitTypedIntoAnAreaCode", "us", "41955552", "(419) 555-52"},
    {"AreaCodeBehindTheCallingCode", "us", "1555526719", "1 555-526-719"},
    {"AreaCodeFromAbroad", "gb", "+1555526719", "+1 555-526-719"},
    {"AreaCodeOfATooLongNumber", "us", "49155552611", "49155552611"},
    {"AssignedAreaCodeOfATooLongNumber", "us", "41555526711", "41555526711"},
    {"TooLongNumberFromAbroad", "gb", "+141555526711", "+1 41555526711"},
    {"RussianAreaCode", "ru", "82145770458", "8 (214) 577-04-58"},
    {"SpanishPrefix", "es", "589061157", "589 06 11 57"},
    {"AustralianPrefix", "gb", "+61991723536", "+61 9 9172 3536"},
};
INSTANTIATE_TEST_SUITE_P(Table, ShippedFileUnassigned, ::testing::ValuesIn(kUnassignedNumbers),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ShippedFile, ArgentinianMobilesAreDialledOtherwiseInTheCountry) {
  LuPhoneFormat formatter(shipped(), "ar");
  EXPECT_EQ(formatter.format("0111523456789"), "011 15-2345-6789");
  EXPECT_TRUE(formatter.isPhoneNumberValid("0111523456789"));
  EXPECT_FALSE(formatter.isPhoneNumberValid("+54111523456789"));
}

// Makes the formatter read of a file what it can. What a harmed file makes of the number is its
// affair.
void use(const PhoneFormatData& data, const CallingCodeInfo& plan) {
  LuPhoneFormat formatter(data, *plan.countries.begin());
  const std::string number = "+" + plan.callingCode + "2012345678";
  static_cast<void>(formatter.format(number));
  static_cast<void>(formatter.format("02012345678"));
  static_cast<void>(formatter.isPhoneNumberValid(number));
  static_cast<void>(formatter.isPhoneNumberValid("02012345678"));
}

// Under a sanitizer each use takes so long that one bit of each byte has to do, another one from
// byte to byte, and one length in seven.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSampled = true;
#elif defined(__has_feature)
constexpr bool kSampled = __has_feature(address_sanitizer);
#else
constexpr bool kSampled = false;
#endif

void flipBits(PhoneFormatData& data, std::size_t at, const CallingCodeInfo& plan) {
  for (std::size_t bit = kSampled ? at % 8 : 0; bit < 8; bit += kSampled ? 8 : 1) {
    data[at] ^= std::byte{1} << bit;
    use(data, plan);
    data[at] ^= std::byte{1} << bit;
  }
}

// Each block as a file of its own, one zone of the world a test, so that each is soon done.
class ShippedFileDamage : public ::testing::TestWithParam<char> {
 protected:
  template <typename Harm>
  void forEachBlock(Harm harm) const {
    for (const SourceBlock& block : decodePhoneFormats(shipped(), "").blocks) {
      if (block.plan.callingCode.front() != GetParam()) continue;
      harm(compilePhoneFormats(std::vector{block}).data, block.plan);
    }
  }
};

TEST_P(ShippedFileDamage, AnyBitFlipDoesNoHarm) {
  forEachBlock([](PhoneFormatData data, const CallingCodeInfo& plan) {
    for (std::size_t i = 0; i < data.size(); ++i) flipBits(data, i, plan);
  });
}

TEST_P(ShippedFileDamage, AnyTruncationDoesNoHarm) {
  forEachBlock([](const PhoneFormatData& data, const CallingCodeInfo& plan) {
    for (std::size_t size = 0; size < data.size(); size += kSampled ? 7 : 1) {
      use(PhoneFormatData(data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size)), plan);
    }
  });
}
INSTANTIATE_TEST_SUITE_P(Zone, ShippedFileDamage,
                         ::testing::Values('1', '2', '3', '4', '5', '6', '7', '8', '9'));

TEST(ShippedFile, AnyBitFlipOfItsHeaderDoesNoHarm) {
  PhoneFormatData data = shipped();
  CallingCodeInfo plan;
  plan.countries = {"gb"};
  plan.callingCode = "44";
  for (std::size_t i = 0; i < 4 + 12 * kRegions; ++i) flipBits(data, i, plan);
}

}  // namespace
}  // namespace kindora
