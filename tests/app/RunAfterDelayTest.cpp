// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/RunAfterDelay.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <concepts>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/fakes/ManualQueue.h"

namespace kindora {
namespace {

using namespace std::chrono_literals;

static_assert(
    std::same_as<decltype(&runAfterDelay), void (*)(double, DispatchQueue&, std::function<void()>)>,
    "returns nothing with which one could cancel");

class RunAfterDelay : public ::testing::Test {
 protected:
  void run(double seconds) {
    runAfterDelay(seconds, queue, [this] { ++runs; });
  }

  ManualQueue queue;
  int runs = 0;
};

TEST_F(RunAfterDelay, RunsWhenTheTimeIsOverAndNotBefore) {
  run(1.25);
  queue.advance(1'249'999'999ns);
  EXPECT_EQ(runs, 0);
  queue.advance(1ns);
  EXPECT_EQ(runs, 1);
}

TEST_F(RunAfterDelay, RunsOnce) {
  run(0.5);
  queue.advance(1h);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(queue.pendingCount(), 0u);
}

TEST_F(RunAfterDelay, ZeroRunsAsSoonAsPossibleButNotInline) {
  run(0);
  EXPECT_EQ(runs, 0);
  queue.runPending();
  EXPECT_EQ(runs, 1);
}

TEST_F(RunAfterDelay, NegativeDelayRunsAsSoonAsPossibleButNotInline) {
  run(-3);
  EXPECT_EQ(runs, 0);
  queue.runPending();
  EXPECT_EQ(runs, 1);
}

TEST_F(RunAfterDelay, KeepsPartsOfAMillisecond) {
  std::vector<std::string> order;
  runAfterDelay(0.5004, queue, [&] { order.emplace_back("0.5004"); });
  runAfterDelay(0.5, queue, [&] { order.emplace_back("0.5"); });
  queue.advance(500ms);
  EXPECT_EQ(order, std::vector<std::string>{"0.5"});
  queue.advance(400us);
  EXPECT_EQ(order, (std::vector<std::string>{"0.5", "0.5004"}));
}

TEST_F(RunAfterDelay, EqualDelaysRunInTheOrderGiven) {
  std::vector<int> order;
  for (int i = 0; i < 3; ++i) runAfterDelay(2, queue, [&order, i] { order.push_back(i); });
  queue.advance(2s);
  EXPECT_EQ(order, (std::vector{0, 1, 2}));
}

TEST_F(RunAfterDelay, RunsAlsoWhenWhoeverAskedIsGone) {
  auto screen = std::make_shared<int>(1);
  bool ran = false;
  bool screenSeen = true;
  runAfterDelay(2.5, queue, [&, weak = std::weak_ptr(screen)] {
    ran = true;
    screenSeen = !weak.expired();
  });
  screen.reset();
  queue.advance(2500ms);
  EXPECT_TRUE(ran);
  EXPECT_FALSE(screenSeen);
}

TEST_F(RunAfterDelay, LongestDelayThatFitsIsAccepted) {
  run(9.2e9);
  EXPECT_EQ(queue.pendingCount(), 1u);
}

TEST_F(RunAfterDelay, LeastNumberThatFitsIsAccepted) {
  run(-0x1p63 / 1e9);
  queue.runPending();
  EXPECT_EQ(runs, 1);
}

struct Refused {
  std::string name;
  double seconds;
};

class RunAfterDelayDeathTest : public RunAfterDelay,
                               public ::testing::WithParamInterface<Refused> {};

TEST_P(RunAfterDelayDeathTest, Stops) {
  EXPECT_DEATH(run(GetParam().seconds), "^fatal error: the delay is not a number of nanoseconds\n");
}

const double kTwoToThe63 = 0x1p63 / 1e9;
const double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    For, RunAfterDelayDeathTest,
    ::testing::Values(Refused{"NotANumber", std::numeric_limits<double>::quiet_NaN()},
                      Refused{"Infinity", kInfinity}, Refused{"NegativeInfinity", -kInfinity},
                      Refused{"LargestDouble", std::numeric_limits<double>::max()},
                      Refused{"NineThousandThreeHundredMillion", 9.3e9},
                      Refused{"MinusNineThousandThreeHundredMillion", -9.3e9},
                      Refused{"TwoToThe63Nanoseconds", kTwoToThe63}),
    [](const auto& refused) { return refused.param.name; });

TEST(RunAfterDelayBoundary, IsExactlyTwoToThe63Nanoseconds) {
  ASSERT_EQ(kTwoToThe63 * 1e9, 0x1p63);
  ASSERT_LT(std::nextafter(kTwoToThe63, 0.0) * 1e9, 0x1p63);
  ManualQueue queue;
  runAfterDelay(std::nextafter(kTwoToThe63, 0.0), queue, [] {});
  EXPECT_EQ(queue.pendingCount(), 1u);
}

}  // namespace
}  // namespace kindora
