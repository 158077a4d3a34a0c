// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What holds after any sequence of the store's operations.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"
#include "tests/model/StoreFixture.h"

namespace kindora {
namespace {

enum class Operation { kReject, kRemove, kReveal, kAccept, kComplete, kCreate };

struct Step {
  Operation operation;
  std::size_t challenge;  // index into the pool
};

[[maybe_unused]] std::ostream& operator<<(std::ostream& out, const Step& step) {
  return out << static_cast<int>(step.operation) << " of " << step.challenge;
}

rc::Gen<std::vector<Step>> anySteps() {
  return rc::gen::container<std::vector<Step>>(rc::gen::apply(
      [](int operation, std::size_t challenge) {
        return Step{static_cast<Operation>(operation), challenge};
      },
      rc::gen::inRange(0, 6), rc::gen::inRange<std::size_t>(0, 12)));
}

using Fields = std::tuple<std::optional<std::string>, std::optional<std::string>, UIImageRef,
                          UserRef, bool, std::int64_t, bool>;

Fields fields(const Challenge& challenge) {
  return {challenge.title,  challenge.description, challenge.challengeImage,
          challenge.sender, challenge.passedOn,    challenge.numSincePassedOn,
          challenge.created};
}

class Session {
 public:
  Session() : start(store) {
    for (const auto* list : {&start.hidden, &start.fresh, &start.inProgress}) {
      pool.insert(pool.end(), list->begin(), list->end());
    }
    // Some that the store does not hold.
    for (int i = 0; i < 4; ++i) pool.push_back(makeChallenge("foreign " + std::to_string(i)));
  }

  void perform(const Step& step) {
    const ChallengeRef& challenge = pool[step.challenge];
    switch (step.operation) {
      case Operation::kReject:
        return store.rejectChallenge(challenge);
      case Operation::kRemove:
        return store.removeInProgressChallenge(challenge);
      case Operation::kReveal:
        store.revealHiddenChallenge();
        return;
      case Operation::kAccept:
        return store.acceptChallenge(challenge);
      case Operation::kComplete:
        return store.completeChallenge(challenge);
      case Operation::kCreate:
        // As the screens use it: a created challenge is new to the store.
        return store.addCreatedChallenge(makeChallenge("created"));
    }
  }

  FakeServices fakes = installFakeServices();
  ChallengeData store;
  Lists start;
  std::vector<ChallengeRef> pool;
};

bool endsWith(const ChallengeData::List& list, const ChallengeData::List& tail) {
  return list.size() >= tail.size() && std::equal(tail.rbegin(), tail.rend(), list.rbegin());
}

bool beginsWith(const ChallengeData::List& list, const ChallengeData::List& head) {
  return list.size() >= head.size() && std::equal(head.begin(), head.end(), list.begin());
}

RC_GTEST_PROP(ChallengeDataProperty, AChallengeIsInAtMostOneList, ()) {
  Session session;
  for (const Step& step : *anySteps()) {
    session.perform(step);
    std::set<ChallengeRef> seen;
    const Lists lists(session.store);
    for (const auto* list : {&lists.hidden, &lists.fresh, &lists.inProgress, &lists.completed}) {
      for (const ChallengeRef& challenge : *list) RC_ASSERT(seen.insert(challenge).second);
    }
  }
}

RC_GTEST_PROP(ChallengeDataProperty, NoOperationChangesARecord, ()) {
  Session session;
  std::vector<Fields> before;
  for (const ChallengeRef& challenge : session.pool) before.push_back(fields(*challenge));
  for (const Step& step : *anySteps()) session.perform(step);
  for (std::size_t i = 0; i < before.size(); ++i) {
    RC_ASSERT(fields(*session.pool[i]) == before[i]);
  }
}

RC_GTEST_PROP(ChallengeDataProperty, CompletedChallengesOnlyGrowAtTheFront, ()) {
  Session session;
  for (const Step& step : *anySteps()) {
    const Lists before(session.store);
    session.perform(step);
    RC_ASSERT(endsWith(session.store.completedChallenges, before.completed));
  }
}

RC_GTEST_PROP(ChallengeDataProperty, HiddenChallengesKeepTheirOrderAndGoFromTheEnd, ()) {
  Session session;
  for (const Step& step : *anySteps()) {
    session.perform(step);
    RC_ASSERT(beginsWith(session.start.hidden, session.store.hiddenChallenges));
  }
}

RC_GTEST_PROP(ChallengeDataProperty, EachOperationDoesWhatItSaysToItsOwnListsAlone, ()) {
  Session session;
  for (const Step& step : *anySteps()) {
    Lists expected(session.store);
    const ChallengeRef challenge = session.pool[step.challenge];
    const auto take = [&](ChallengeData::List& list) { return std::erase(list, challenge) == 1; };
    switch (step.operation) {
      case Operation::kReject:
        take(expected.fresh);
        break;
      case Operation::kRemove:
        take(expected.inProgress);
        break;
      case Operation::kReveal:
        if (!expected.hidden.empty()) {
          expected.fresh.insert(expected.fresh.begin(), expected.hidden.back());
          expected.hidden.pop_back();
        }
        break;
      case Operation::kAccept:
        if (take(expected.fresh)) expected.inProgress.push_back(challenge);
        break;
      case Operation::kComplete:
        if (take(expected.inProgress)) {
          expected.completed.insert(expected.completed.begin(), challenge);
        }
        break;
      case Operation::kCreate:
        break;
    }
    session.perform(step);
    if (step.operation == Operation::kCreate) {
      expected.completed.insert(expected.completed.begin(),
                                session.store.completedChallenges.front());
    }
    RC_ASSERT(Lists(session.store) == expected);
  }
}

}  // namespace
}  // namespace kindora
