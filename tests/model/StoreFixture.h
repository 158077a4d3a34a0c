// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"

namespace kindora {

using Titles = std::vector<std::string>;

inline Titles titles(const ChallengeData::List& list) {
  Titles result;
  for (const ChallengeRef& challenge : list) result.push_back(challenge->title.value_or("(none)"));
  return result;
}

/// All four lists, to see that none has changed.
struct Lists {
  ChallengeData::List hidden;
  ChallengeData::List fresh;
  ChallengeData::List inProgress;
  ChallengeData::List completed;

  explicit Lists(const ChallengeData& store)
      : hidden(store.hiddenChallenges),
        fresh(store.newChallenges),
        inProgress(store.inProgressChallenges),
        completed(store.completedChallenges) {}
  friend bool operator==(const Lists&, const Lists&) = default;
};

inline ChallengeRef makeChallenge(const std::string& title) {
  auto challenge = std::make_shared<Challenge>();
  challenge->title = title;
  return challenge;
}

/// Another record with the same fields.
inline ChallengeRef lookAlike(const ChallengeRef& original) {
  auto copy = std::make_shared<Challenge>();
  copy->title = original->title;
  copy->description = original->description;
  copy->challengeImage = original->challengeImage;
  copy->sender = original->sender;
  copy->passedOn = original->passedOn;
  copy->numSincePassedOn = original->numSincePassedOn;
  copy->created = original->created;
  return copy;
}

class StoreFixture : public ::testing::Test {
 protected:
  FakeServices fakes = installFakeServices();
  ChallengeData store;
};

}  // namespace kindora
