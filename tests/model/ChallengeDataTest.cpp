// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/ChallengeData.h"

#include <gtest/gtest.h>

#include <concepts>
#include <latch>
#include <memory>
#include <thread>
#include <type_traits>
#include <vector>

#include "tests/model/StoreFixture.h"

namespace kindora {
namespace {

static_assert(!std::is_copy_constructible_v<ChallengeData>);
static_assert(!std::is_copy_assignable_v<ChallengeData>);
static_assert(std::same_as<decltype(&ChallengeData::rejectChallenge),
                           void (ChallengeData::*)(const ChallengeRef&)>);

using ChallengeDataTest = StoreFixture;

TEST_F(ChallengeDataTest, StartsWithThreeNewTwoInProgressThreeHiddenAndNoneCompleted) {
  EXPECT_EQ(titles(store.newChallenges),
            (Titles{"Cup o' Coffee", "Smile Challenge", "Love is an Open Door"}));
  EXPECT_EQ(titles(store.inProgressChallenges),
            (Titles{"Catch Your Breath", "Compliment Challenge"}));
  EXPECT_EQ(titles(store.hiddenChallenges),
            (Titles{"Chocolate Challenge", "Hug Challenge", "Music Challenge"}));
  EXPECT_TRUE(store.completedChallenges.empty());
}

TEST_F(ChallengeDataTest, ListsCanBeReplacedFromOutside) {
  const ChallengeRef challenge = makeChallenge("x");
  store.hiddenChallenges = {challenge};
  store.newChallenges.clear();
  EXPECT_EQ(store.revealHiddenChallenge(), challenge);
  EXPECT_EQ(store.newChallenges, ChallengeData::List{challenge});
}

// Sharing

TEST_F(ChallengeDataTest, SharedInstanceIsAlwaysTheSameStore) {
  EXPECT_EQ(&ChallengeData::sharedInstance(), &ChallengeData::sharedInstance());
}

TEST_F(ChallengeDataTest, SixteenThreadsGetTheSameSharedInstance) {
  constexpr int kThreads = 16;
  std::vector<ChallengeData*> seen(kThreads);
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (ChallengeData*& mine : seen) {
    threads.emplace_back([&start, &mine] {
      start.arrive_and_wait();
      mine = &ChallengeData::sharedInstance();
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const ChallengeData* one : seen) EXPECT_EQ(one, seen.front());
  EXPECT_EQ(seen.front()->newChallenges.size(), 3u);
}

TEST_F(ChallengeDataTest, AFieldChangedThroughOneReferenceIsSeenThroughEveryOther) {
  const ChallengeRef held = store.newChallenges.front();
  store.acceptChallenge(held);
  held->title = "Tea";
  EXPECT_EQ(store.inProgressChallenges.back()->title, "Tea");
  EXPECT_TRUE(*store.inProgressChallenges.back() == *held);
}

// Revealing

TEST_F(ChallengeDataTest, ShakesDeliverTheLastHiddenChallengeFirst) {
  EXPECT_EQ(store.revealHiddenChallenge()->title, "Music Challenge");
  EXPECT_EQ(store.revealHiddenChallenge()->title, "Hug Challenge");
  EXPECT_EQ(store.revealHiddenChallenge()->title, "Chocolate Challenge");
  EXPECT_EQ(store.revealHiddenChallenge(), nullptr);
}

TEST_F(ChallengeDataTest, FirstShakePutsMusicInFrontOfTheNewChallenges) {
  const ChallengeRef last = store.hiddenChallenges.back();
  EXPECT_EQ(store.revealHiddenChallenge(), last);
  EXPECT_EQ(store.newChallenges.front(), last);
  EXPECT_EQ(titles(store.newChallenges), (Titles{"Music Challenge", "Cup o' Coffee",
                                                 "Smile Challenge", "Love is an Open Door"}));
}

TEST_F(ChallengeDataTest, RevealingKeepsTheOrderOfTheOtherHiddenChallenges) {
  store.revealHiddenChallenge();
  EXPECT_EQ(titles(store.hiddenChallenges), (Titles{"Chocolate Challenge", "Hug Challenge"}));
}

TEST_F(ChallengeDataTest, FourthShakeReturnsNothingAndChangesNothing) {
  for (int i = 0; i < 3; ++i) store.revealHiddenChallenge();
  const Lists before(store);
  EXPECT_EQ(store.revealHiddenChallenge(), nullptr);
  EXPECT_EQ(Lists(store), before);
}

// Rejecting

TEST_F(ChallengeDataTest, RejectRemovesFromTheNewChallengesAndTheRestMovesUp) {
  store.rejectChallenge(store.newChallenges[1]);
  EXPECT_EQ(titles(store.newChallenges), (Titles{"Cup o' Coffee", "Love is an Open Door"}));
}

TEST_F(ChallengeDataTest, RejectTouchesNoOtherList) {
  Lists expected(store);
  store.rejectChallenge(store.newChallenges[0]);
  expected.fresh.erase(expected.fresh.begin());
  EXPECT_EQ(Lists(store), expected);
}

TEST_F(ChallengeDataTest, RejectLeavesAChallengeOfAnotherListAlone) {
  store.addCreatedChallenge(makeChallenge("mine"));
  const Lists before(store);
  store.rejectChallenge(store.inProgressChallenges[0]);
  store.rejectChallenge(store.hiddenChallenges[0]);
  store.rejectChallenge(store.completedChallenges[0]);
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, RejectRemovesOnlyTheFirstOfTwoOccurrences) {
  const ChallengeRef twice = makeChallenge("twice");
  const ChallengeRef once = makeChallenge("once");
  store.newChallenges = {once, twice, twice};
  store.rejectChallenge(twice);
  EXPECT_EQ(store.newChallenges, (ChallengeData::List{once, twice}));
}

TEST_F(ChallengeDataTest, ARejectedChallengeIsReleasedWithItsLastReference) {
  const std::weak_ptr<Challenge> watched = store.newChallenges[0];
  store.rejectChallenge(watched.lock());
  EXPECT_TRUE(watched.expired());
}

// Removing from those in progress

TEST_F(ChallengeDataTest, RemoveTakesAChallengeInProgressOutOfTheStore) {
  Lists expected(store);
  store.removeInProgressChallenge(store.inProgressChallenges[0]);
  expected.inProgress.erase(expected.inProgress.begin());
  EXPECT_EQ(Lists(store), expected);
}

TEST_F(ChallengeDataTest, RemoveLeavesAChallengeOfAnotherListAlone) {
  store.addCreatedChallenge(makeChallenge("mine"));
  const Lists before(store);
  store.removeInProgressChallenge(store.newChallenges[0]);
  store.removeInProgressChallenge(store.hiddenChallenges[0]);
  store.removeInProgressChallenge(store.completedChallenges[0]);
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, RemoveTakesOnlyTheFirstOfTwoOccurrences) {
  const ChallengeRef twice = makeChallenge("twice");
  const ChallengeRef once = makeChallenge("once");
  store.inProgressChallenges = {twice, once, twice};
  store.removeInProgressChallenge(twice);
  EXPECT_EQ(store.inProgressChallenges, (ChallengeData::List{once, twice}));
}

TEST_F(ChallengeDataTest, ARemovedChallengeIsReleasedWithItsLastReference) {
  ChallengeRef held = store.inProgressChallenges[0];
  const std::weak_ptr<Challenge> watched = held;
  store.removeInProgressChallenge(held);
  EXPECT_FALSE(watched.expired());
  held.reset();
  EXPECT_TRUE(watched.expired());
}

// Accepting

TEST_F(ChallengeDataTest, AcceptedCoffeeComesLastInProgress) {
  store.acceptChallenge(store.newChallenges[0]);
  EXPECT_EQ(titles(store.inProgressChallenges),
            (Titles{"Catch Your Breath", "Compliment Challenge", "Cup o' Coffee"}));
  EXPECT_EQ(titles(store.newChallenges), (Titles{"Smile Challenge", "Love is an Open Door"}));
}

TEST_F(ChallengeDataTest, AcceptTouchesNeitherHiddenNorCompletedChallenges) {
  store.addCreatedChallenge(makeChallenge("mine"));
  const Lists before(store);
  store.acceptChallenge(store.newChallenges[2]);
  EXPECT_EQ(store.hiddenChallenges, before.hidden);
  EXPECT_EQ(store.completedChallenges, before.completed);
}

TEST_F(ChallengeDataTest, AcceptingTwiceChangesNothingTheSecondTime) {
  const ChallengeRef challenge = store.newChallenges[0];
  store.acceptChallenge(challenge);
  const Lists before(store);
  store.acceptChallenge(challenge);
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, AcceptingAHiddenOrForeignChallengeChangesNothing) {
  const Lists before(store);
  store.acceptChallenge(store.hiddenChallenges[0]);
  store.acceptChallenge(makeChallenge("foreign"));
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, AcceptMovesOnlyTheFirstOfTwoOccurrences) {
  const ChallengeRef twice = makeChallenge("twice");
  store.newChallenges = {twice, twice};
  store.inProgressChallenges.clear();
  store.acceptChallenge(twice);
  EXPECT_EQ(store.newChallenges, ChallengeData::List{twice});
  EXPECT_EQ(store.inProgressChallenges, ChallengeData::List{twice});
}

// Completing

TEST_F(ChallengeDataTest, CompleteMovesAChallengeInProgressToTheCompletedOnes) {
  const ChallengeRef challenge = store.inProgressChallenges[0];
  store.completeChallenge(challenge);
  EXPECT_EQ(titles(store.inProgressChallenges), Titles{"Compliment Challenge"});
  EXPECT_EQ(store.completedChallenges, ChallengeData::List{challenge});
}

TEST_F(ChallengeDataTest, TheChallengeCompletedLaterComesFirst) {
  store.completeChallenge(store.inProgressChallenges[0]);
  store.completeChallenge(store.inProgressChallenges[0]);
  EXPECT_EQ(titles(store.completedChallenges),
            (Titles{"Compliment Challenge", "Catch Your Breath"}));
}

TEST_F(ChallengeDataTest, CompletingWhatIsNotInProgressChangesNothing) {
  store.addCreatedChallenge(makeChallenge("mine"));
  const Lists before(store);
  store.completeChallenge(store.newChallenges[0]);
  store.completeChallenge(store.hiddenChallenges[0]);
  store.completeChallenge(store.completedChallenges[0]);
  store.completeChallenge(makeChallenge("foreign"));
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, CompleteMovesOnlyTheFirstOfTwoOccurrences) {
  const ChallengeRef twice = makeChallenge("twice");
  store.inProgressChallenges = {twice, twice};
  store.completeChallenge(twice);
  EXPECT_EQ(store.inProgressChallenges, ChallengeData::List{twice});
  EXPECT_EQ(store.completedChallenges, ChallengeData::List{twice});
}

// Creating

TEST_F(ChallengeDataTest, ACreatedChallengeComesFirstAmongTheCompletedOnes) {
  store.completeChallenge(store.inProgressChallenges[0]);
  store.addCreatedChallenge(makeChallenge("mine"));
  EXPECT_EQ(titles(store.completedChallenges), (Titles{"mine", "Catch Your Breath"}));
}

TEST_F(ChallengeDataTest, AChallengeCreatedTwiceIsCompletedTwice) {
  const ChallengeRef mine = makeChallenge("mine");
  store.addCreatedChallenge(mine);
  store.addCreatedChallenge(mine);
  EXPECT_EQ(store.completedChallenges, (ChallengeData::List{mine, mine}));
}

TEST_F(ChallengeDataTest, CreatingDoesNotLookForTheChallengeInAnyList) {
  Lists expected(store);
  const ChallengeRef fresh = store.newChallenges[0];
  store.addCreatedChallenge(fresh);
  expected.completed = {fresh};
  EXPECT_EQ(Lists(store), expected);
}

TEST_F(ChallengeDataTest, CreatingDoesNotMarkTheChallengeAsCreated) {
  const ChallengeRef mine = makeChallenge("mine");
  store.addCreatedChallenge(mine);
  EXPECT_FALSE(mine->created);
}

// Identity

TEST_F(ChallengeDataTest, NoOperationFindsALookAlike) {
  const Lists before(store);
  store.rejectChallenge(lookAlike(store.newChallenges[0]));
  store.acceptChallenge(lookAlike(store.newChallenges[0]));
  store.removeInProgressChallenge(lookAlike(store.inProgressChallenges[0]));
  store.completeChallenge(lookAlike(store.inProgressChallenges[0]));
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, AnAbsentChallengeIsFoundInNoList) {
  store.newChallenges.insert(store.newChallenges.begin(), nullptr);
  store.inProgressChallenges.insert(store.inProgressChallenges.begin(), nullptr);
  const Lists before(store);
  store.rejectChallenge(nullptr);
  store.acceptChallenge(nullptr);
  store.removeInProgressChallenge(nullptr);
  store.completeChallenge(nullptr);
  EXPECT_EQ(Lists(store), before);
}

TEST_F(ChallengeDataTest, AReferenceIntoTheListItselfMayBeGiven) {
  const ChallengeRef first = store.newChallenges[0];
  store.acceptChallenge(store.newChallenges[0]);
  store.completeChallenge(store.inProgressChallenges.back());
  store.addCreatedChallenge(store.completedChallenges[0]);
  EXPECT_EQ(store.completedChallenges, (ChallengeData::List{first, first}));
}

}  // namespace
}  // namespace kindora
