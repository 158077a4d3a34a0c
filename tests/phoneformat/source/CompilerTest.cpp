// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/Compiler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/source/Decoder.h"
#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

CompiledFile compiled(const std::string& source) {
  const SourceText text = parseSource(source, "source");
  EXPECT_THAT(text.problems, IsEmpty());
  return compilePhoneFormats(text.blocks);
}

TEST(Compiler, WritesTheBytesOfTheLayout) {
  const CompiledFile file = compiled(
      "code 44\ncountries gb gg\ntrunk 0\naccess 00\nset 2\n20-29 both \"## ##\" byte8=9\n"
      "30 intl \"##\"\n");
  EXPECT_THAT(file.problems, IsEmpty());
  Bytes expected;
  expected.u32(2).padded("44", 4).padded("gb", 4).u32(0).padded("44", 4).padded("gg", 4).u32(0);
  expected.u32(12 + 3 + 4).u32(4 + 2 * 16).u32(1);
  expected.text("0").u8(0).text("00").u8(0);
  expected.u16(2).u16(2);
  expected.u32(20).u32(29).u8(9).u8(4).u8(0).u8(0).u8(3).u8(0).u16(0);
  // "##" is the end of "## ##".
  expected.u32(30).u32(30).u8(0).u8(2).u8(0).u8(0).u8(2).u8(0).u16(3);
  expected.text("## ##");
  EXPECT_EQ(file.data, expected.data);
}

TEST(Compiler, CountriesAreSortedAndBlocksKeepTheirOrder) {
  const CompiledFile file = compiled("code 44\ncountries gb\ncode 1\ncountries us ca\n");
  const LuPhoneFormat formatter(file.data, "");
  EXPECT_EQ(formatter.value32(0), 3u);
  EXPECT_EQ(formatter.value16(8), static_cast<std::uint32_t>('c') | 'a' << 8);
  EXPECT_EQ(formatter.value16(20), static_cast<std::uint32_t>('g') | 'b' << 8);
  EXPECT_EQ(formatter.value32(24), 0u);
  EXPECT_EQ(formatter.value32(12), formatter.value32(36));
}

TEST(Compiler, WhatItWritesIsReadBackTheSame) {
  const std::string source =
      "code 1\ncountries ca us\ntrunk 1\naccess 011\nset 3\n  200-999  trunk  \"(###) ###-####\"\n"
      "  200-999  intl  \"###-###-####\"\nset 0\n  0  any  \"#\"\n\ncode 44\ncountries gb\n";
  const SourceText decoded = decodePhoneFormats(compiled(source).data, "file");
  EXPECT_THAT(decoded.problems, IsEmpty());
  EXPECT_EQ(writeSource(decoded.blocks), source);
}

TEST(Compiler, NothingMakesAFileWithoutCountries) {
  EXPECT_EQ(compilePhoneFormats({}).data, Bytes().u32(0).data);
}

TEST(Compiler, CodeWithoutCountryIsAProblem) {
  EXPECT_THAT(compiled("code 44\n").problems,
              ElementsAre(Problem{"source:1", "calling code 44 has no country"}));
}

TEST(Compiler, CodeThatCameBeforeIsAProblem) {
  EXPECT_THAT(compiled("code 44\ncountries gb\ncode 44\ncountries gg\n").problems,
              ElementsAre(Problem{"source:3", "calling code 44 came before"}));
}

TEST(Compiler, CountryThatCameBeforeInAnotherFileIsAProblem) {
  std::vector<SourceBlock> blocks = parseSource("code 44\ncountries gb\n", "one").blocks;
  blocks.push_back(parseSource("code 45\ncountries gb\n", "other").blocks[0]);
  EXPECT_THAT(compilePhoneFormats(blocks).problems,
              ElementsAre(Problem{"other:1", "calling code 45 names \"gb\", which came before"}));
}

TEST(Compiler, MoreRulesThanAnOffsetReachesAreAProblem) {
  std::string source = "code 44\ncountries gb\nset 4\n";
  for (int i = 0; i < 4096; ++i) source += std::to_string(i) + " any \"####\"\n";
  EXPECT_THAT(compiled(source).problems,
              ElementsAre(Problem{"source:1",
                                  "calling code 44: the size of the rule sets, 65540, is more than "
                                  "65535"}));
}

TEST(Compiler, PatternsBeyondTheReachOfAnOffsetAreAProblem) {
  std::string source = "code 44\ncountries gb\nset 4\n";
  for (int i = 0; i < 600; ++i) {
    source += "1 any \"" + std::string(110, 'x') + std::to_string(1000 + i) + "#\"\n";
  }
  EXPECT_THAT(
      compiled(source).problems,
      ElementsAre(Problem{"source:1",
                          "calling code 44: the size of the patterns, 69600, is more than 65535"}));
}

}  // namespace
}  // namespace kindora
