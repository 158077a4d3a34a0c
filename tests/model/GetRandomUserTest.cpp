// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "model/RandomUserAddress.h"
#include "tests/model/RandomUserFixture.h"

namespace kindora {
namespace {

class GetRandomUser : public RandomUserFixture {
 protected:
  PrefetchQueue& queue = PrefetchQueue::sharedInstance();
};

TEST_F(GetRandomUser, AsksTheServiceWhenNobodyIsPrefetched) {
  User::getRandomUser(receive());
  ASSERT_EQ(fakes.http->requests().size(), 1u);
  EXPECT_EQ(fakes.http->requests()[0].url, randomUserAddress());
  EXPECT_EQ(fakes.http->requests()[0].method, "GET");
  answer(0, personReply("jane", "doe"));
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0]->name, "Jane Doe");
}

TEST_F(GetRandomUser, FetchedUserIsHandedOverAndNotQueued) {
  User::getRandomUser(receive());
  answer(0, personReply("jane", "doe"));
  EXPECT_EQ(queue.size(), 0u);
}

TEST_F(GetRandomUser, TakesAPrefetchedUserLaterOnTheMainQueueWithoutARequest) {
  const UserRef waiting = named("Waiting");
  queue.append(waiting);
  std::thread::id calledOn;
  User::getRandomUser([&](UserRef user) {
    calledOn = std::this_thread::get_id();
    received.push_back(std::move(user));
  });
  EXPECT_TRUE(received.empty());
  EXPECT_EQ(queue.size(), 1u);
  fakes.mainQueue->runPending();
  EXPECT_EQ(received, std::vector{waiting});
  EXPECT_EQ(calledOn, std::this_thread::get_id());
  EXPECT_EQ(queue.size(), 0u);
  EXPECT_EQ(fakes.http->sessionCount(), 0u);
}

TEST_F(GetRandomUser, WithThreeQueuedDeliversTheFirstAndLeavesTwo) {
  for (const char* name : {"1", "2", "3"}) queue.append(named(name));
  User::getRandomUser(receive());
  fakes.mainQueue->runPending();
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0]->name, "1");
  EXPECT_EQ(queue.size(), 2u);
}

TEST_F(GetRandomUser, DeliversQueuedUsersInTheirOrder) {
  for (const char* name : {"1", "2", "3"}) queue.append(named(name));
  for (int i = 0; i < 3; ++i) User::getRandomUser(receive());
  fakes.mainQueue->runPending();
  ASSERT_EQ(received.size(), 3u);
  EXPECT_EQ(received[0]->name, "1");
  EXPECT_EQ(received[1]->name, "2");
  EXPECT_EQ(received[2]->name, "3");
}

TEST_F(GetRandomUser, QueueIsEmptyAgainInsideTheCompletionOfTheLastUser) {
  queue.append(named("1"));
  std::size_t left = 99;
  User::getRandomUser([&](const UserRef&) { left = queue.size(); });
  fakes.mainQueue->runPending();
  EXPECT_EQ(left, 0u);
}

TEST_F(GetRandomUser, TwoCallsForOneQueuedUserStop) {
  queue.append(named("1"));
  User::getRandomUser(receive());
  User::getRandomUser(receive());
  EXPECT_DEATH(fakes.mainQueue->runPending(), "^fatal error: no prefetched user is left\n");
}

using GetRandomUserAddress = GetRandomUser;

TEST_F(GetRandomUserAddress, IsTheRootPathOfTheService) {
  const std::string address = randomUserAddress().absoluteString();
  const std::size_t host = address.find("//");
  ASSERT_NE(host, std::string::npos);
  const std::size_t path = address.find('/', host + 2);
  EXPECT_TRUE(path == std::string::npos || path + 1 == address.size()) << address;
}

}  // namespace
}  // namespace kindora
