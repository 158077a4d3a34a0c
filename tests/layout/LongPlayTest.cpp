// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The solver played long: a few seconds by default, or KINDORA_LONG_PLAY calls a family, which is
// what every night does with a million.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "tests/layout/Play.h"

namespace kindora::layout {
namespace {

// What systems are played, and how many of a hundred calls on each.
struct Size {
  std::size_t variables;
  std::size_t mostHeld;
  std::uint64_t percent;
  bool isExact;
};
constexpr Size kSizes[] = {{4, 16, 20, true},    {6, 16, 20, true},    {20, 40, 25, false},
                           {20, 100, 15, false}, {40, 100, 15, false}, {40, 200, 5, false}};
constexpr std::uint64_t kUsualCalls = 1500;
// A play goes from an empty system to a full one and on.
constexpr std::uint64_t kLongestPlay = 20000;
// A start anew costs as much as so many calls of a full system.
constexpr std::uint64_t kUsuallyJudgedEach = 20;
constexpr std::uint64_t kJudgedEachInALongPlay = 100;

std::uint64_t callsToPlay() {
  const char* wanted = std::getenv("KINDORA_LONG_PLAY");
  return wanted == nullptr ? kUsualCalls : std::strtoull(wanted, nullptr, 10);
}

class LongPlayTest : public ::testing::TestWithParam<Family> {};

TEST_P(LongPlayTest, StaysRight) {
  const std::uint64_t calls = callsToPlay();
  PlayResult sum;
  for (const Size& size : kSizes) {
    const std::uint64_t most = std::max<std::uint64_t>(1, calls * size.percent / 100);
    std::uint64_t played = 0;
    for (std::uint64_t seed = 1; played < most && sum.isRight(); ++seed) {
      const PlayResult one =
          play({.family = GetParam(),
                .variables = size.variables,
                .mostHeld = size.mostHeld,
                .seed = seed,
                .calls = std::min(most - played, kLongestPlay),
                .judgedEach = calls > kUsualCalls ? kJudgedEachInALongPlay : kUsuallyJudgedEach,
                .isExact = size.isExact});
      played += one.calls;
      sum += one;
    }
  }
  std::cout << nameOf(GetParam()) << ": " << sum << '\n';
  EXPECT_EQ(sum.requiredMissed, 0U);
  EXPECT_EQ(sum.aboveBest, 0U);
  EXPECT_EQ(sum.notNumbers, 0U);
  EXPECT_EQ(sum.wrongVerdicts, 0U);
  EXPECT_EQ(sum.runaways, 0U);
  EXPECT_EQ(sum.calls, calls) << sum.firstFailure;
}

INSTANTIATE_TEST_SUITE_P(Families, LongPlayTest,
                         ::testing::Values(Family::units, Family::integers, Family::views,
                                           Family::wide),
                         [](const auto& played) { return nameOf(played.param); });

}  // namespace
}  // namespace kindora::layout
