// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/Friends.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"
#include "tests/model/StoreFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;
using Names = std::vector<std::string>;

const Names kSeedNames{"Bob the Astronaut",    "Horace the Smiley", "Jane the Cactus",
                       "Joe in the Red Shirt", "Josh the Whale",    "Sally the Eye",
                       "Sarah the Sloth",      "Your Boss"};

Names names(const Friends& friends) {
  Names result;
  for (const UserRef& user : friends.friendUsers) result.push_back(user->name);
  return result;
}

UserRef person(const std::string& name) {
  return std::make_shared<User>(name, nullptr, std::nullopt);
}

ChallengeRef sentBy(const UserRef& sender) {
  ChallengeRef challenge = makeChallenge("sent");
  challenge->sender = sender;
  return challenge;
}

class FriendsTest : public ::testing::Test {
 protected:
  // The shared store starts as seeded, also when another test has used it before.
  FriendsTest() {
    const ChallengeData seeded;
    store.hiddenChallenges = seeded.hiddenChallenges;
    store.newChallenges = seeded.newChallenges;
    store.inProgressChallenges = seeded.inProgressChallenges;
    store.completedChallenges = seeded.completedChallenges;
  }

  void emptyStore() {
    store.hiddenChallenges.clear();
    store.newChallenges.clear();
    store.inProgressChallenges.clear();
    store.completedChallenges.clear();
  }

  FakeServices fakes = installFakeServices();
  ChallengeData& store = ChallengeData::sharedInstance();
};

TEST_F(FriendsTest, SharedListIsMadeAtItsFirstUseFromWhatTheStoreHoldsThen) {
  store.rejectChallenge(store.newChallenges[0]);
  const Names before = names(Friends::sharedInstance());
  EXPECT_EQ(before, Names(kSeedNames.begin() + 1, kSeedNames.end()));
  store.rejectChallenge(store.newChallenges[0]);
  EXPECT_EQ(names(Friends::sharedInstance()), before);
}

TEST_F(FriendsTest, SixteenThreadsGetTheSameSharedList) {
  constexpr int kThreads = 16;
  std::vector<Friends*> seen(kThreads);
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (Friends*& mine : seen) {
    threads.emplace_back([&start, &mine] {
      start.arrive_and_wait();
      mine = &Friends::sharedInstance();
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const Friends* one : seen) EXPECT_EQ(one, seen.front());
}

TEST_F(FriendsTest, SeedGivesTheEightSendersByName) { EXPECT_EQ(names(Friends()), kSeedNames); }

TEST_F(FriendsTest, SendersAreTheRecordsOfTheChallenges) {
  const Friends friends;
  EXPECT_EQ(friends.friendUsers[0], store.newChallenges[0]->sender);
}

TEST_F(FriendsTest, SendersOfAllFourListsCount) {
  emptyStore();
  store.hiddenChallenges = {sentBy(person("Hidden"))};
  store.completedChallenges = {sentBy(person("Completed"))};
  store.inProgressChallenges = {sentBy(person("In progress"))};
  store.newChallenges = {sentBy(person("New"))};
  EXPECT_THAT(names(Friends()), ElementsAre("Completed", "Hidden", "In progress", "New"));
}

TEST_F(FriendsTest, MovingChallengesLosesNoSender) {
  store.revealHiddenChallenge();
  store.acceptChallenge(store.newChallenges[1]);
  store.completeChallenge(store.inProgressChallenges[0]);
  EXPECT_EQ(names(Friends()), kSeedNames);
}

TEST_F(FriendsTest, AListMadeAfterARejectLacksTheSender) {
  store.rejectChallenge(store.newChallenges[0]);
  EXPECT_EQ(names(Friends()), Names(kSeedNames.begin() + 1, kSeedNames.end()));
}

TEST_F(FriendsTest, AListMadeAfterARejectKeepsTheSenderOfAnotherChallenge) {
  store.newChallenges[1]->sender = store.newChallenges[0]->sender;
  store.rejectChallenge(store.newChallenges[0]);
  EXPECT_EQ(names(Friends()).front(), "Bob the Astronaut");
}

TEST_F(FriendsTest, AListAlreadyMadeKeepsARejectedSender) {
  const Friends friends;
  store.rejectChallenge(store.newChallenges[0]);
  EXPECT_EQ(names(friends), kSeedNames);
}

TEST_F(FriendsTest, ChallengesWithoutASenderAddNobody) {
  store.addCreatedChallenge(makeChallenge("mine"));
  EXPECT_EQ(names(Friends()), kSeedNames);
}

TEST_F(FriendsTest, AStoreWithoutChallengesGivesNoFriends) {
  emptyStore();
  EXPECT_TRUE(Friends().friendUsers.empty());
}

TEST_F(FriendsTest, APersonWhoSentTwoChallengesIsListedTwice) {
  emptyStore();
  const UserRef sender = person("Twice");
  store.hiddenChallenges = {sentBy(sender)};
  store.newChallenges = {sentBy(person("Alone")), sentBy(sender)};
  EXPECT_THAT(Friends().friendUsers, ElementsAre(store.newChallenges[0]->sender, sender, sender));
}

TEST_F(FriendsTest, TwoPeopleOfOneNameAreBothListed) {
  emptyStore();
  const UserRef one = person("Sam");
  const UserRef other = person("Sam");
  store.newChallenges = {sentBy(one), sentBy(other)};
  EXPECT_THAT(Friends().friendUsers, UnorderedElementsAre(one, other));
}

TEST_F(FriendsTest, NamesAreComparedByTheTextServiceNotByBytes) {
  emptyStore();
  store.newChallenges = {sentBy(person("Zed")), sentBy(person("anna"))};
  EXPECT_THAT(names(Friends()), ElementsAre("anna", "Zed"));
}

TEST_F(FriendsTest, AnAddedFriendStaysAtTheEnd) {
  Friends friends;
  friends.addFriend(person("Aaron"));
  EXPECT_EQ(friends.friendUsers.size(), 9u);
  EXPECT_EQ(names(friends).back(), "Aaron");
  EXPECT_EQ(names(friends).front(), "Bob the Astronaut");
}

TEST_F(FriendsTest, AFriendAddedTwiceIsListedTwiceAtTheEnd) {
  Friends friends;
  const UserRef aaron = person("Aaron");
  friends.addFriend(aaron);
  friends.addFriend(aaron);
  ASSERT_EQ(friends.friendUsers.size(), 10u);
  EXPECT_EQ(friends.friendUsers[8], aaron);
  EXPECT_EQ(friends.friendUsers[9], aaron);
}

}  // namespace
}  // namespace kindora
