// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/tool/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace kindora {
namespace {

using ::testing::ElementsAre;

std::optional<Arguments> parsed(const std::vector<const char*>& words) {
  return parseArguments(words);
}

TEST(Arguments, OptionsMayStandAnywhere) {
  const auto arguments = parsed({"--country", "gb", "format", "--data", "a.dat"});
  ASSERT_TRUE(arguments);
  EXPECT_EQ(arguments->command, "format");
  EXPECT_EQ(arguments->country, "gb");
  EXPECT_EQ(arguments->data, "a.dat");
}

TEST(Arguments, WhatFollowsTheEndOfOptionsIsAnOperand) {
  const auto arguments = parsed({"compile", "a", "--", "--data"});
  ASSERT_TRUE(arguments);
  EXPECT_THAT(arguments->operands, ElementsAre("a", "--data"));
  EXPECT_EQ(arguments->data, std::nullopt);
}

TEST(Arguments, WithoutCommandThereIsNothingToDo) {
  EXPECT_FALSE(parsed({}));
  EXPECT_FALSE(parsed({"--data", "a.dat"}));
}

TEST(Arguments, UnknownOptionsAndMissingValuesAreRefused) {
  EXPECT_FALSE(parsed({"format", "--nation", "gb"}));
  EXPECT_FALSE(parsed({"format", "-h"}));
  EXPECT_FALSE(parsed({"format", "--country"}));
}

}  // namespace
}  // namespace kindora
