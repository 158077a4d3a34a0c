// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>
#include <latch>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tests/model/RandomUserFixture.h"

namespace kindora {
namespace {

class GenerateRandomUsers : public RandomUserFixture {
 protected:
  PrefetchQueue& queue = PrefetchQueue::sharedInstance();
};

TEST_F(GenerateRandomUsers, StartsOneRequestAUserAndReturnsBeforeAnyReply) {
  User::generateRandomUsersWithCount(3);
  EXPECT_EQ(fakes.http->sessionCount(), 3u);
  EXPECT_EQ(fakes.http->requests().size(), 3u);
  EXPECT_EQ(queue.size(), 0u);
}

TEST_F(GenerateRandomUsers, OneUserDoesNotMakeTheCallWaitEither) {
  User::generateRandomUsersWithCount(1);
  EXPECT_EQ(fakes.http->requests().size(), 1u);
}

TEST_F(GenerateRandomUsers, QueuesUsersInTheOrderInWhichTheyArrive) {
  User::generateRandomUsersWithCount(3);
  answer(2, personReply("third", "x"));
  answer(0, personReply("first", "x"));
  answer(1, personReply("second", "x"));
  EXPECT_EQ(queue.size(), 3u);
  EXPECT_EQ(queue.takeFirst()->name, "Third X");
  EXPECT_EQ(queue.takeFirst()->name, "First X");
  EXPECT_EQ(queue.takeFirst()->name, "Second X");
}

TEST_F(GenerateRandomUsers, AFailedRequestAddsNobody) {
  User::generateRandomUsersWithCount(2);
  fakes.http->answer(0, HttpError{"no connection"});
  answer(1, personReply("jane", "doe"));
  EXPECT_EQ(queue.size(), 1u);
}

TEST_F(GenerateRandomUsers, QueuedUsersAreThenDeliveredWithoutARequest) {
  User::generateRandomUsersWithCount(1);
  answer(0, personReply("jane", "doe"));
  User::getRandomUser(receive());
  fakes.mainQueue->runPending();
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0]->name, "Jane Doe");
  EXPECT_EQ(fakes.http->requests().size(), 1u);
}

TEST_F(GenerateRandomUsers, WithUsersQueuedTakesFromTheQueueAndPutsThemAtItsEnd) {
  queue.append(named("1"));
  queue.append(named("2"));
  User::generateRandomUsersWithCount(1);
  EXPECT_TRUE(fakes.http->requests().empty());
  fakes.mainQueue->runPending();
  EXPECT_EQ(queue.takeFirst()->name, "2");
  EXPECT_EQ(queue.takeFirst()->name, "1");
}

TEST_F(GenerateRandomUsers, RepliesOnManyThreadsLoseNobodyWhileTheMainQueueTakes) {
  constexpr int kCount = 16;
  fakes.json->setValue("body", personReply("jane", "doe"));
  User::generateRandomUsersWithCount(kCount);
  std::latch start(kCount);
  std::vector<std::thread> threads;
  for (std::size_t request = 0; request < kCount; ++request) {
    threads.emplace_back([&, request] {
      start.arrive_and_wait();
      fakes.http->answer(request, HttpResponse{200, "body"});
    });
  }
  while (received.size() < kCount) {
    if (queue.size() == 0) {
      std::this_thread::yield();
      continue;
    }
    User::getRandomUser(receive());
    fakes.mainQueue->runPending();
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(std::set(received.begin(), received.end()).size(), std::size_t{kCount});
  EXPECT_EQ(fakes.http->requests().size(), std::size_t{kCount});
}

// A call that never returns is ended by an alarm; one that returns leaves the child alive.
void generateUntilTheAlarm(int count) {
  const itimerval alarm{.it_interval = {}, .it_value = {.tv_sec = 0, .tv_usec = 200'000}};
  setitimer(ITIMER_REAL, &alarm, nullptr);
  User::generateRandomUsersWithCount(count);
}

using GenerateRandomUsersDeathTest = GenerateRandomUsers;

TEST_F(GenerateRandomUsersDeathTest, CountOfZeroNeverReturns) {
  EXPECT_EXIT(generateUntilTheAlarm(0), ::testing::KilledBySignal(SIGALRM), "");
}

TEST_F(GenerateRandomUsersDeathTest, NegativeCountNeverReturns) {
  EXPECT_EXIT(generateUntilTheAlarm(-5), ::testing::KilledBySignal(SIGALRM), "");
}

TEST_F(GenerateRandomUsersDeathTest, CountOfZeroStartsNoRequest) {
  EXPECT_EXIT(
      {
        // The alarm's handler runs while the call waits and sees what it has done.
        static FakeHttp& http = *fakes.http;
        std::signal(SIGALRM, [](int) { std::_Exit(http.sessionCount() == 0 ? 0 : 1); });
        generateUntilTheAlarm(0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace kindora
