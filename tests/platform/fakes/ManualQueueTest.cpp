// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/ManualQueue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kindora {
namespace {

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

class ManualQueueTest : public ::testing::Test {
 protected:
  DispatchQueue::Closure log(const std::string& entry) {
    return [this, entry] { entries.push_back(entry); };
  }

  ManualQueue queue;
  std::vector<std::string> entries;
  using Entries = std::vector<std::string>;
};

TEST_F(ManualQueueTest, RunsNothingInsideTheCallThatGivesIt) {
  queue.async(log("async"));
  queue.after(0ns, log("after"));
  EXPECT_TRUE(entries.empty());
  EXPECT_EQ(queue.pendingCount(), 2u);
}

TEST_F(ManualQueueTest, RunsPendingClosuresInTheOrderGiven) {
  queue.async(log("1"));
  queue.after(-5s, log("2"));
  queue.async(log("3"));
  queue.runPending();
  EXPECT_EQ(entries, (Entries{"1", "2", "3"}));
}

TEST_F(ManualQueueTest, RunsDeadlinesInOrderAndEqualOnesAsGiven) {
  queue.after(2ms, log("late"));
  queue.after(1ms, log("early 1"));
  queue.after(1ms, log("early 2"));
  queue.advance(2ms);
  EXPECT_EQ(entries, (Entries{"early 1", "early 2", "late"}));
}

TEST_F(ManualQueueTest, RunsADeadlineAtItsNanosecond) {
  queue.after(10ns, log("x"));
  queue.advance(9ns);
  EXPECT_TRUE(entries.empty());
  queue.advance(1ns);
  EXPECT_EQ(entries, Entries{"x"});
}

TEST_F(ManualQueueTest, ClockStandsAtTheDeadlineWhileAClosureRuns) {
  std::vector<nanoseconds> times;
  queue.after(3s, [&] { times.push_back(queue.now()); });
  queue.after(1s, [&] { times.push_back(queue.now()); });
  queue.advance(10s);
  EXPECT_EQ(times, (std::vector<nanoseconds>{1s, 3s}));
  EXPECT_EQ(queue.now(), 10s);
}

TEST_F(ManualQueueTest, RunsInOneAdvanceWhatClosuresAddForThatTime) {
  queue.after(1s, [&] { queue.after(1s, log("added")); });
  queue.advance(2s);
  EXPECT_EQ(entries, Entries{"added"});
}

TEST_F(ManualQueueTest, KeepsWhatClosuresAddForLater) {
  queue.after(1s, [&] { queue.after(2s, log("added")); });
  queue.advance(2s);
  EXPECT_TRUE(entries.empty());
  queue.advance(1s);
  EXPECT_EQ(entries, Entries{"added"});
}

TEST_F(ManualQueueTest, LongestDelayNeverComesRound) {
  queue.advance(1s);
  queue.after(nanoseconds::max(), log("never"));
  queue.advance(1000h);
  EXPECT_TRUE(entries.empty());
}

TEST_F(ManualQueueTest, ShortestDelayIsOverAtOnce) {
  queue.after(nanoseconds::min(), log("x"));
  queue.runPending();
  EXPECT_EQ(entries, Entries{"x"});
}

TEST_F(ManualQueueTest, ReleasesAClosureOnceItHasRun) {
  auto held = std::make_shared<int>();
  queue.async([held] {});
  EXPECT_EQ(held.use_count(), 2);
  queue.runPending();
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(ManualQueueTest, TakesClosuresFromManyThreads) {
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([this] {
      for (int k = 0; k < 100; ++k) queue.async(log("x"));
    });
  }
  for (std::thread& thread : threads) thread.join();
  queue.runPending();
  EXPECT_EQ(entries.size(), 400u);
}

using ManualQueueDeathTest = ManualQueueTest;

TEST_F(ManualQueueDeathTest, AdvancingInsideAClosureStops) {
  queue.async([this] { queue.runPending(); });
  EXPECT_DEATH(queue.runPending(), "fatal error: a closure of the manual queue advanced the queue");
}

}  // namespace
}  // namespace kindora
