// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/PrefetchQueue.h"

#include <gtest/gtest.h>

#include <latch>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kindora {
namespace {

UserRef numbered(int number) {
  return std::make_shared<User>(std::to_string(number), nullptr, std::nullopt);
}

TEST(PrefetchQueue, StartsEmpty) {
  PrefetchQueue queue;
  EXPECT_EQ(queue.size(), 0u);
  EXPECT_EQ(queue.takeFirst(), nullptr);
}

TEST(PrefetchQueue, SharedInstanceIsAlwaysTheSame) {
  EXPECT_EQ(&PrefetchQueue::sharedInstance(), &PrefetchQueue::sharedInstance());
}

TEST(PrefetchQueue, GivesUsersInTheOrderInWhichTheyWereAppended) {
  PrefetchQueue queue;
  for (int i = 0; i < 3; ++i) queue.append(numbered(i));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(queue.takeFirst()->name, std::to_string(i));
  EXPECT_EQ(queue.takeFirst(), nullptr);
}

TEST(PrefetchQueue, KeepsTheOrderWhenAppendingAndTakingAlternate) {
  PrefetchQueue queue;
  queue.append(numbered(0));
  queue.append(numbered(1));
  EXPECT_EQ(queue.takeFirst()->name, "0");
  queue.append(numbered(2));
  EXPECT_EQ(queue.size(), 2u);
  EXPECT_EQ(queue.takeFirst()->name, "1");
  EXPECT_EQ(queue.takeFirst()->name, "2");
}

TEST(PrefetchQueue, ReleasesWhatIsStillInItWhenItGoes) {
  auto queue = std::make_unique<PrefetchQueue>();
  const UserRef collected = numbered(0);
  const UserRef appended = numbered(1);
  queue->append(numbered(2));
  queue->append(collected);
  EXPECT_NE(queue->takeFirst(), nullptr);
  queue->append(appended);
  queue.reset();
  EXPECT_EQ(collected.use_count(), 1);
  EXPECT_EQ(appended.use_count(), 1);
}

TEST(PrefetchQueue, LosesNobodyWhenManyThreadsAppendWhileOneTakes) {
  constexpr int kThreads = 8;
  constexpr int kEach = 500;
  PrefetchQueue queue;
  std::latch start(kThreads + 1);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&queue, &start, thread] {
      start.arrive_and_wait();
      for (int i = 0; i < kEach; ++i) queue.append(numbered(thread * kEach + i));
    });
  }
  start.arrive_and_wait();
  std::map<int, int> lastOfThread;
  for (int taken = 0; taken < kThreads * kEach;) {
    const UserRef user = queue.takeFirst();
    if (!user) {
      std::this_thread::yield();
      continue;
    }
    ++taken;
    // Those of one thread come in its order.
    const int number = std::stoi(user->name);
    const auto [entry, isFirst] = lastOfThread.try_emplace(number / kEach, number);
    if (!isFirst) {
      EXPECT_EQ(number, entry->second + 1);
      entry->second = number;
    } else {
      EXPECT_EQ(number % kEach, 0);
    }
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(queue.takeFirst(), nullptr);
}

}  // namespace
}  // namespace kindora
