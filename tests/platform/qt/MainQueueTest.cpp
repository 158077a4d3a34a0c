// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/MainQueue.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMetaObject>
#include <QObject>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kindora {
namespace {

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

class MainQueueTest : public ::testing::Test {
 protected:
  using Entries = std::vector<std::string>;

  DispatchQueue::Closure log(const std::string& entry) {
    return [this, entry] { entries.push_back(entry); };
  }

  static void runUntil(const std::function<bool()>& isDone) {
    while (!isDone()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  void runUntilEntries(std::size_t count) {
    runUntil([&] { return entries.size() >= count; });
  }

  MainQueue queue;
  Entries entries;
};

TEST_F(MainQueueTest, RunsNothingInsideTheCallThatGivesIt) {
  queue.async(log("async"));
  queue.after(0ns, log("zero"));
  queue.after(-1s, log("negative"));
  EXPECT_TRUE(entries.empty());
  runUntilEntries(3);
}

TEST_F(MainQueueTest, RunsClosuresInTheOrderGiven) {
  queue.async(log("1"));
  queue.async(log("2"));
  queue.async(log("3"));
  runUntilEntries(3);
  EXPECT_EQ(entries, (Entries{"1", "2", "3"}));
}

TEST_F(MainQueueTest, RunsOnTheMainThreadWhatOtherThreadsGiveInTheirOrder) {
  constexpr std::size_t kThreads = 4;
  constexpr std::size_t kEach = 100;
  std::vector<std::vector<std::size_t>> seen(kThreads);
  int elsewhere = 0;
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread, main = std::this_thread::get_id()] {
      for (std::size_t i = 0; i < kEach; ++i) {
        queue.async([&, thread, i, main] {
          seen[thread].push_back(i);
          if (std::this_thread::get_id() != main) ++elsewhere;
        });
      }
    });
  }
  runUntil([&] {
    std::size_t total = 0;
    for (const auto& one : seen) total += one.size();
    return total == kThreads * kEach;
  });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(elsewhere, 0);
  for (const auto& one : seen) EXPECT_TRUE(std::is_sorted(one.begin(), one.end()));
}

TEST_F(MainQueueTest, RunsADelayGivenByAnotherThread) {
  std::thread([&] { queue.after(1ms, log("x")); }).join();
  runUntilEntries(1);
}

TEST_F(MainQueueTest, RunsEarlierDeadlinesFirst) {
  queue.after(60ms, log("60"));
  queue.after(1ms, log("1"));
  queue.after(30ms, log("30"));
  queue.async(log("0"));
  runUntilEntries(4);
  EXPECT_EQ(entries, (Entries{"0", "1", "30", "60"}));
}

TEST_F(MainQueueTest, KeepsPartsOfAMillisecond) {
  // The later deadline is given first; both must be given before the difference has passed.
  for (;;) {
    entries.clear();
    const auto start = std::chrono::steady_clock::now();
    queue.after(5'400us, log("5.4 ms"));
    queue.after(5'000us, log("5 ms"));
    const bool inTime = std::chrono::steady_clock::now() - start < 400us;
    runUntilEntries(2);
    if (inTime) break;
  }
  EXPECT_EQ(entries, (Entries{"5 ms", "5.4 ms"}));
}

TEST_F(MainQueueTest, ADelayGivenInsideAClosureRunsToo) {
  queue.after(1ms, [this] { queue.after(1ms, log("x")); });
  runUntilEntries(1);
}

TEST_F(MainQueueTest, LongestDelayNeverComesRound) {
  queue.after(nanoseconds::max(), log("never"));
  queue.after(1ms, log("soon"));
  runUntilEntries(1);
  EXPECT_EQ(entries, Entries{"soon"});
}

TEST_F(MainQueueTest, ShortestDelayIsOverAtOnce) {
  queue.after(nanoseconds::min(), log("x"));
  runUntilEntries(1);
}

TEST_F(MainQueueTest, AClosureThatKeepsAskingForAnotherTurnStarvesNobody) {
  bool otherEventSeen = false;
  QObject receiver;
  int turns = 0;
  std::function<void()> again = [&] {
    if (++turns < 1000 && !otherEventSeen) queue.async(again);
  };
  queue.async(again);
  QMetaObject::invokeMethod(
      &receiver, [&] { otherEventSeen = true; }, Qt::QueuedConnection);
  runUntil([&] { return otherEventSeen; });
  EXPECT_LT(turns, 1000);
}

TEST_F(MainQueueTest, OtherClosuresWaitWhileOneRunsAnEventLoop) {
  queue.async([this] {
    entries.emplace_back("begin");
    queue.async(log("inner"));
    queue.after(1ms, log("delayed"));
    bool timerSeen = false;
    QTimer::singleShot(20, [&] { timerSeen = true; });
    runUntil([&] { return timerSeen; });
    entries.emplace_back("end");
  });
  queue.async(log("outer"));
  runUntilEntries(5);
  EXPECT_EQ(entries, (Entries{"begin", "end", "outer", "inner", "delayed"}));
}

TEST_F(MainQueueTest, ReleasesAClosureOnceItHasRun) {
  auto held = std::make_shared<int>();
  bool ran = false;
  queue.async([held, &ran] { ran = true; });
  runUntil([&] { return ran; });
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(MainQueueTest, AClosureMayUseTheQueueWhileItIsReleased) {
  const auto onRelease = [this](int* held) {
    delete held;
    queue.async(log("released"));
  };
  queue.async([held = std::shared_ptr<int>(new int, onRelease)] {});
  runUntilEntries(1);
}

}  // namespace
}  // namespace kindora
