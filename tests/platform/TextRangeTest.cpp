// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/TextRange.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(Utf16Length, CountsUnitsAndNotBytes) {
  EXPECT_EQ(utf16Length(""), 0U);
  EXPECT_EQ(utf16Length("abc"), 3U);
  EXPECT_EQ(utf16Length("é"), 1U);
  EXPECT_EQ(utf16Length("水"), 1U);
  EXPECT_EQ(utf16Length("a😀"), 3U);
}

TEST(Utf16Length, ABrokenCharacterCountsAsOne) {
  EXPECT_EQ(utf16Length("\x80\xFF"), 2U);
  EXPECT_EQ(utf16Length("a\xF0\x9F"), 2U);
}

TEST(Utf8Offset, FindsTheByteOfAUnit) {
  EXPECT_EQ(utf8Offset("aé水b", 0), 0U);
  EXPECT_EQ(utf8Offset("aé水b", 2), 3U);
  EXPECT_EQ(utf8Offset("aé水b", 3), 6U);
}

TEST(Utf8Offset, BehindTheEndIsTheEnd) { EXPECT_EQ(utf8Offset("ab", 9), 2U); }

TEST(Utf8Offset, BetweenSurrogatesIsTheCharactersBeginning) {
  EXPECT_EQ(utf8Offset("a😀b", 2), 1U);
  EXPECT_EQ(utf8Offset("a😀b", 3), 5U);
}

TEST(StringByReplacingCharactersInRange, ReplacesInsertsAndRemoves) {
  EXPECT_EQ(stringByReplacingCharactersInRange("hello", {1, 3}, "ipp"), "hippo");
  EXPECT_EQ(stringByReplacingCharactersInRange("hello", {5, 0}, "!"), "hello!");
  EXPECT_EQ(stringByReplacingCharactersInRange("hello", {4, 1}, ""), "hell");
}

TEST(StringByReplacingCharactersInRange, CountsInUtf16) {
  EXPECT_EQ(stringByReplacingCharactersInRange("a😀é", {1, 2}, "b"), "abé");
}

TEST(StringByReplacingCharactersInRange, StopsAtTheEnd) {
  EXPECT_EQ(stringByReplacingCharactersInRange("abc", {2, 99}, "d"), "abd");
}

TEST(StringByTrimmingWhitespaceAndNewlines, TakesBlanksAndBreaksFromBothEnds) {
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines("  Smile  "), "Smile");
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines("Do it\n"), "Do it");
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines("\r\n\t\v\f x"), "x");
}

TEST(StringByTrimmingWhitespaceAndNewlines, KeepsWhatIsInside) {
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines(" a  b\nc "), "a  b\nc");
}

TEST(StringByTrimmingWhitespaceAndNewlines, TakesBlanksBeyondAscii) {
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines("\u00A0\u3000x\u2028\u2009\u0085"), "x");
}

TEST(StringByTrimmingWhitespaceAndNewlines, KeepsLettersThatBeginLikeABlank) {
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines("\u00A1x\u3001"), "\u00A1x\u3001");
}

TEST(StringByTrimmingWhitespaceAndNewlines, NothingButBlanksIsEmpty) {
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines(" \n\u3000"), "");
  EXPECT_EQ(stringByTrimmingWhitespaceAndNewlines(""), "");
}

}  // namespace
}  // namespace kindora
