// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/ChallengeData.h"

#include <algorithm>
#include <utility>

#include "model/SeedCatalogue.h"

namespace kindora {
namespace {

// Takes the first occurrence of the challenge out of the list; none when the list does not hold it.
// The caller's reference may be the very element that goes.
ChallengeRef takeFirst(ChallengeData::List& list, const ChallengeRef& challenge) {
  const auto found = std::ranges::find_if(list, [&](const ChallengeRef& element) {
    return element && challenge && *element == *challenge;
  });
  if (found == list.end()) return nullptr;
  ChallengeRef taken = std::move(*found);
  list.erase(found);
  return taken;
}

}  // namespace

ChallengeData::ChallengeData() {
  for (SeedChallenge& seed : makeSeedCatalogue()) {
    switch (seed.place) {
      case SeedPlace::kNew:
        newChallenges.push_back(std::move(seed.challenge));
        break;
      case SeedPlace::kInProgress:
        inProgressChallenges.push_back(std::move(seed.challenge));
        break;
      case SeedPlace::kHidden:
        hiddenChallenges.push_back(std::move(seed.challenge));
        break;
    }
  }
}

ChallengeData& ChallengeData::sharedInstance() {
  // Never destroyed: its pictures must not outlive what draws them.
  static ChallengeData& instance = *new ChallengeData;
  return instance;
}

void ChallengeData::rejectChallenge(const ChallengeRef& challenge) {
  takeFirst(newChallenges, challenge);
}

void ChallengeData::removeInProgressChallenge(const ChallengeRef& challenge) {
  takeFirst(inProgressChallenges, challenge);
}

ChallengeRef ChallengeData::revealHiddenChallenge() {
  if (hiddenChallenges.empty()) return nullptr;
  ChallengeRef challenge = std::move(hiddenChallenges.back());
  hiddenChallenges.pop_back();
  newChallenges.insert(newChallenges.begin(), challenge);
  return challenge;
}

void ChallengeData::acceptChallenge(const ChallengeRef& challenge) {
  if (ChallengeRef taken = takeFirst(newChallenges, challenge)) {
    inProgressChallenges.push_back(std::move(taken));
  }
}

void ChallengeData::completeChallenge(const ChallengeRef& challenge) {
  if (ChallengeRef taken = takeFirst(inProgressChallenges, challenge)) {
    completedChallenges.insert(completedChallenges.begin(), std::move(taken));
  }
}

void ChallengeData::addCreatedChallenge(const ChallengeRef& challenge) {
  completedChallenges.insert(completedChallenges.begin(), challenge);
}

}  // namespace kindora
