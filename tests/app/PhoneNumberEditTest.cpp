// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/PhoneNumberEdit.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeServices.h"

namespace kindora {
namespace {

class PhoneNumberEditTest : public ::testing::Test {
 protected:
  PhoneNumberEditTest() {
    installFakeServices();
    phoneChars.addCharactersInString("+*#,");
  }
  PhoneNumberEdit edit(std::string_view text, NSRange selection, std::string_view replacement) {
    return editPhoneNumber(phoneFormat, phoneChars, text, selection, replacement);
  }

  LuPhoneFormat phoneFormat{*readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE), "us"};
  CharacterSet phoneChars = CharacterSet::decimalDigitCharacterSet();
};

TEST_F(PhoneNumberEditTest, ADigitTypedInTheMiddleKeepsTheCaretBehindIt) {
  const PhoneNumberEdit result = edit("(212) 555-26", {2, 0}, "0");
  EXPECT_EQ(result.typed, "(2012) 555-26");
  EXPECT_EQ(result.phone, "(201) 255-526");
  EXPECT_EQ(result.caret, 3u);
  EXPECT_FALSE(result.valid);
  EXPECT_FALSE(result.isPlain());
}

TEST_F(PhoneNumberEditTest, ADigitTypedAtTheEndMovesTheCaretPastNewSeparators) {
  const PhoneNumberEdit result = edit("415-5552", {8, 0}, "6");
  EXPECT_EQ(result.phone, "(415) 555-26");
  EXPECT_EQ(result.caret, 12u);
}

TEST_F(PhoneNumberEditTest, ABackspaceOverASeparatorMovesTheCaretBeforeIt) {
  const PhoneNumberEdit dash = edit("(415) 555-2671", {10, 0}, "");
  EXPECT_EQ(dash.phone, "(415) 555-2671");
  EXPECT_EQ(dash.caret, 9u);
  const PhoneNumberEdit digit = edit(dash.phone, {dash.caret, 0}, "");
  EXPECT_EQ(digit.phone, "(415) 552-671");
  EXPECT_EQ(digit.caret, 8u);
}

TEST_F(PhoneNumberEditTest, WithoutPhoneCharactersBeforeItTheCaretGoesBehindTheBracket) {
  const PhoneNumberEdit result = edit("(415) 555-2671", {1, 0}, "");
  EXPECT_EQ(result.phone, "(415) 555-2671");
  EXPECT_EQ(result.caret, 1u);
}

TEST_F(PhoneNumberEditTest, WithoutPhoneCharactersBeforeItAndADigitInFrontTheCaretGoesToTheEnd) {
  const PhoneNumberEdit result = edit("41212555267", {0, 1}, "");
  EXPECT_EQ(result.phone, "1 212-555-267");
  EXPECT_EQ(result.caret, 13u);
}

TEST_F(PhoneNumberEditTest, APastedNumberTakesTheSelectionsPlace) {
  const PhoneNumberEdit result = edit("(415) 555-2671", {0, 14}, "2125550100");
  EXPECT_EQ(result.phone, "(212) 555-0100");
  EXPECT_EQ(result.caret, 14u);
  EXPECT_TRUE(result.valid);
}

TEST_F(PhoneNumberEditTest, APastedNumberThatIsLaidOutAlreadyIsAPlainEdit) {
  const PhoneNumberEdit result = edit("", {0, 0}, "(415) 555-2671");
  EXPECT_TRUE(result.isPlain());
  EXPECT_TRUE(result.valid);
}

TEST_F(PhoneNumberEditTest, ACommaCountsAlthoughTheFormatterDropsIt) {
  const PhoneNumberEdit result = edit("415-5", {4, 0}, ",");
  EXPECT_EQ(result.phone, "415-5");
  EXPECT_EQ(result.caret, 5u);
}

TEST_F(PhoneNumberEditTest, ALetterIsDroppedAndTheCaretStaysBehindItsDigit) {
  const PhoneNumberEdit result = edit("(415) 555-2671", {3, 0}, "x");
  EXPECT_EQ(result.phone, "(415) 555-2671");
  EXPECT_EQ(result.caret, 3u);
}

TEST_F(PhoneNumberEditTest, ABackspaceAtTheVeryStartChangesNothing) {
  const PhoneNumberEdit result = edit("(415) 555-2671", {0, 0}, "");
  EXPECT_EQ(result.typed, "(415) 555-2671");
  EXPECT_TRUE(result.isPlain());
}

TEST_F(PhoneNumberEditTest, CountsInUtf16UnitsAndSplitsNoCharacter) {
  const PhoneNumberEdit result = edit("415\U0001F4DE", {5, 0}, "");
  EXPECT_EQ(result.typed, "415");
  const PhoneNumberEdit behind = edit("\U0001F4DE415", {2, 0}, "2");
  EXPECT_EQ(behind.typed, "\U0001F4DE2415");
}

TEST_F(PhoneNumberEditTest, WithoutACountryLettersStayAndTheNumberIsNotValid) {
  LuPhoneFormat nowhere(*readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE), "");
  const PhoneNumberEdit result = editPhoneNumber(nowhere, phoneChars, "415x", {4, 0}, "5");
  EXPECT_EQ(result.phone, "415x5");
  EXPECT_FALSE(result.valid);
}

}  // namespace
}  // namespace kindora
