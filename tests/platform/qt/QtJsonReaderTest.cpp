// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtJsonReader.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace kindora {
namespace {

std::optional<Json> read(std::string_view text) { return QtJsonReader().read(text); }

// The text that the JSON text holds.
std::string readText(std::string_view text) {
  const std::optional<Json> value = read(text);
  const std::string* result = value ? value->as<std::string>() : nullptr;
  return result == nullptr ? "(no text)" : *result;
}

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(QtJsonReader, ReadsAnObjectWithAllKindsOfValues) {
  const auto value =
      read(R"( {"null": null, "yes": true, "no": false, "number": -1.5e2, "text": "x",
               "array": [1, "two", []], "object": {"": {}}} )");
  ASSERT_TRUE(value.has_value());
  const JsonObject& object = *value->as<JsonObject>();
  EXPECT_EQ(object.size(), 7u);
  EXPECT_NE(memberOf(object, "null")->as<std::nullptr_t>(), nullptr);
  EXPECT_EQ(*memberOf(object, "yes")->as<bool>(), true);
  EXPECT_EQ(*memberOf(object, "no")->as<bool>(), false);
  EXPECT_EQ(*memberOf(object, "number")->as<double>(), -150);
  EXPECT_EQ(*memberOf(object, "text")->as<std::string>(), "x");
  const JsonArray& array = *memberOf(object, "array")->as<JsonArray>();
  ASSERT_EQ(array.size(), 3u);
  EXPECT_EQ(*array[0].as<double>(), 1);
  EXPECT_EQ(*array[1].as<std::string>(), "two");
  EXPECT_TRUE(array[2].as<JsonArray>()->empty());
  const JsonObject& inner = *memberOf(object, "object")->as<JsonObject>();
  EXPECT_TRUE(memberOf(inner, "")->as<JsonObject>()->empty());
}

TEST(QtJsonReader, ReadsAnArrayAtTheTop) {
  EXPECT_EQ(read("[1, 2]")->as<JsonArray>()->size(), 2u);
  EXPECT_TRUE(read("[]")->as<JsonArray>()->empty());
}

TEST(QtJsonReader, ReadsScalarsAtTheTop) {
  EXPECT_EQ(*read("3")->as<double>(), 3);
  EXPECT_EQ(*read(" \"x\"\n")->as<std::string>(), "x");
  EXPECT_EQ(*read("true")->as<bool>(), true);
  EXPECT_NE(read("null")->as<std::nullptr_t>(), nullptr);
}

TEST(QtJsonReader, TheLastOfTwoEqualKeysCounts) {
  const auto value = read(R"({"a": 1, "a": 2})");
  const JsonObject& object = *value->as<JsonObject>();
  EXPECT_EQ(object.size(), 1u);
  EXPECT_EQ(*memberOf(object, "a")->as<double>(), 2);
}

TEST(QtJsonReader, ByteOrderMarkIsSkipped) { EXPECT_EQ(*read("\xEF\xBB\xBF 3")->as<double>(), 3); }

TEST(QtJsonReader, ReadsTextBeyondAscii) { EXPECT_EQ(readText(R"("Élodie 😀")"), "Élodie 😀"); }

TEST(QtJsonReader, ReadsEscapedCodeUnits) { EXPECT_EQ(readText(R"("\u00e9\u00C9")"), "éÉ"); }

TEST(QtJsonReader, ReadsSurrogatePairs) { EXPECT_EQ(readText(R"("\ud83d\ude00")"), "😀"); }

TEST(QtJsonReader, ReadsShortEscapes) {
  EXPECT_EQ(readText(R"("\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t");
}

TEST(QtJsonReader, ReadsAnEscapedNul) {
  EXPECT_EQ(readText(R"("a\u0000b")"), std::string("a\0b", 3));
}

TEST(QtJsonReader, ReadsEscapedKeys) {
  const auto value = read(R"({"\u0061": 1})");
  EXPECT_NE(memberOf(*value->as<JsonObject>(), "a"), nullptr);
}

TEST(QtJsonReader, HalfASurrogatePairDoesNoHarm) {
  const std::string text = readText(R"("a\ud83db")");
  EXPECT_TRUE(text.starts_with('a') && text.ends_with('b')) << text;
}

TEST(QtJsonReader, ReadsWhatIsNestedAHundredTimes) { EXPECT_TRUE(read(nested(100)).has_value()); }

TEST(QtJsonReader, WhatIsNestedWithoutMeasureIsNoJson) {
  EXPECT_FALSE(read(nested(500'000)).has_value());
  EXPECT_FALSE(read(std::string(500'000, '[')).has_value());
}

struct Invalid {
  const char* name;
  std::string_view text;
};

class QtJsonReaderRefuses : public ::testing::TestWithParam<Invalid> {};

TEST_P(QtJsonReaderRefuses, Text) { EXPECT_FALSE(read(GetParam().text).has_value()); }

INSTANTIATE_TEST_SUITE_P(
    Any, QtJsonReaderRefuses,
    ::testing::Values(Invalid{"Empty", ""}, Invalid{"Blanks", " \n"}, Invalid{"Html", "<html>"},
                      Invalid{"TwoValues", "1, 2"}, Invalid{"TwoArrays", "[], []"},
                      Invalid{"ClosingBracket", "]"}, Invalid{"InsideOut", "], ["},
                      Invalid{"ValueAndBracket", "1]"}, Invalid{"CommaAtTheEnd", "1,"},
                      Invalid{"CommaInArray", "[1,]"}, Invalid{"CommaInObject", R"({"a": 1,})"},
                      Invalid{"OpenObject", "{"}, Invalid{"OpenText", R"("abc)"},
                      Invalid{"KeyWithoutValue", R"({"a"})"}, Invalid{"BareKey", "{a: 1}"},
                      Invalid{"HalfAWord", "nul"}, Invalid{"SingleQuotes", "'x'"},
                      Invalid{"Comment", "1 // one"}, Invalid{"BadEscape", R"("\u12G4")"},
                      Invalid{"Nul", {"1\0", 2}}, Invalid{"BadUtf8", "\"\xff\xfe\""},
                      Invalid{"HalfUtf8", "\"\xc3\""}),
    [](const auto& invalid) { return invalid.param.name; });

}  // namespace
}  // namespace kindora
