// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What holds for any text and any file.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "phoneformat/LuPhoneFormat.h"
#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

constexpr const char* kCountries[] = {"us", "gb", "it", "jp", "xx", "", "US"};

// Whether the characters of `part` occur in `whole` in the same order.
bool isSubsequence(const std::string& part, const std::string& whole) {
  std::size_t found = 0;
  for (const char ch : whole) {
    if (found < part.size() && part[found] == ch) ++found;
  }
  return found == part.size();
}

RC_GTEST_PROP(LuPhoneFormatProperty, DigitsKeepTheirOrder, (const std::string& text)) {
  for (const char* country : kCountries) {
    LuPhoneFormat formatter(handMadeFile(samplePlans()), country);
    const std::string result = LuPhoneFormat::strip(formatter.format(text));
    RC_ASSERT(result == LuPhoneFormat::strip(text));
  }
}

RC_GTEST_PROP(LuPhoneFormatProperty, DialledDigitsKeepTheirOrder, ()) {
  const auto text =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("00112345678999+*# ()-x")));
  for (const char* country : kCountries) {
    LuPhoneFormat formatter(handMadeFile(samplePlans()), country);
    RC_ASSERT(LuPhoneFormat::strip(formatter.format(text)) == LuPhoneFormat::strip(text));
    RC_ASSERT(isSubsequence(LuPhoneFormat::strip(text), formatter.format(text)));
  }
}

RC_GTEST_PROP(LuPhoneFormatProperty, VerdictDependsOnTheStrippedTextAlone, ()) {
  const auto text =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789+*# ()-x")));
  for (const char* country : kCountries) {
    LuPhoneFormat formatter(handMadeFile(samplePlans()), country);
    const bool valid = formatter.isPhoneNumberValid(text);
    RC_ASSERT(formatter.isPhoneNumberValid(LuPhoneFormat::strip(text)) == valid);
    RC_ASSERT(formatter.isPhoneNumberValid(formatter.format(text)) == valid);
  }
}

RC_GTEST_PROP(LuPhoneFormatProperty, AnyBytesAreReadAsAFile, ()) {
  const auto bytes =
      *rc::gen::container<std::vector<std::uint8_t>>(rc::gen::weightedOneOf<std::uint8_t>(
          {{3, rc::gen::inRange<std::uint8_t>(0, 60)}, {1, rc::gen::arbitrary<std::uint8_t>()}}));
  Bytes file;
  file.u32(2).padded("1", 4).padded("us", 4).u32(0).padded("44", 4).padded("gb", 4).u32(9);
  for (const std::uint8_t byte : bytes) file.u8(byte);
  LuPhoneFormat formatter(file.data, "us");
  for (const char* number : {"4155552671", "+442071234567", "011441", "+1", "*1#"}) {
    const std::string once = formatter.format(number);
    RC_ASSERT(formatter.format(number) == once);
    static_cast<void>(formatter.isPhoneNumberValid(number));
  }
}

TEST(LuPhoneFormatExhaustive, FormattingTwiceChangesNothingForAllShortInputs) {
  static constexpr std::string_view kAlphabet = "0149+*";
  for (const char* country : kCountries) {
    LuPhoneFormat formatter(handMadeFile(samplePlans()), country);
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const std::string once = formatter.format(texts[i]);
      ASSERT_EQ(formatter.format(once), once) << texts[i];
      ASSERT_EQ(LuPhoneFormat::strip(once), LuPhoneFormat::strip(texts[i]));
      if (texts[i].size() == 5) continue;
      const std::string text = texts[i];
      for (const char ch : kAlphabet) texts.push_back(text + ch);
    }
  }
}

}  // namespace
}  // namespace kindora
