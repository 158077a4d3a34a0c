// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/URL.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kindora {
namespace {

TEST(URL, KeepsItsText) {
  const auto url = URL::URLWithString("https://example.org:8080/a%20b?c=d#e");
  ASSERT_TRUE(url.has_value());
  EXPECT_EQ(url->absoluteString(), "https://example.org:8080/a%20b?c=d#e");
}

TEST(URL, MayBeRelative) { EXPECT_TRUE(URL::URLWithString("pictures/1.jpg").has_value()); }

TEST(URL, EqualsAnotherOfTheSameText) {
  EXPECT_EQ(URL::URLWithString("http://a/"), URL::URLWithString("http://a/"));
  EXPECT_NE(URL::URLWithString("http://a/"), URL::URLWithString("http://b/"));
}

TEST(URL, EveryLegalCharacterIsAccepted) {
  EXPECT_TRUE(URL::URLWithString("azAZ09-._~:/?#[]@!$&'()*+,;=%41").has_value());
}

struct Refused {
  const char* name;
  std::string_view text;
};

class URLRefuses : public ::testing::TestWithParam<Refused> {};

TEST_P(URLRefuses, Text) { EXPECT_EQ(URL::URLWithString(GetParam().text), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(
    Any, URLRefuses,
    ::testing::Values(Refused{"Empty", ""}, Refused{"Blank", "http://a/b c"},
                      Refused{"Newline", "http://a/\n"}, Refused{"Nul", {"http://a/\0", 10}},
                      Refused{"Delete", "http://a/\x7f"}, Refused{"NonAscii", "http://a/é"},
                      Refused{"Quote", "http://a/\""}, Refused{"Less", "http://a/<"},
                      Refused{"Greater", "http://a/>"}, Refused{"Backslash", "http://a/\\"},
                      Refused{"Caret", "http://a/^"}, Refused{"Backtick", "http://a/`"},
                      Refused{"OpenBrace", "http://a/{"}, Refused{"Bar", "http://a/|"},
                      Refused{"CloseBrace", "http://a/}"}, Refused{"BarePercent", "http://a/%"},
                      Refused{"PercentWithOneDigit", "http://a/%4"},
                      Refused{"PercentWithALetter", "http://a/%4g"}),
    [](const auto& refused) { return refused.param.name; });

}  // namespace
}  // namespace kindora
