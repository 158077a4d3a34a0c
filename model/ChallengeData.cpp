// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/ChallengeData.h"

#include <algorithm>
#include <utility>

#include "model/SeedCatalogue.h"

namespace kindora {
namespace {

// Removes the first occurrence of the challenge; false when the list does not hold it.
bool removeFirst(ChallengeData::List& list, const ChallengeRef& challenge) {
  if (!challenge) return false;
  const auto found = std::ranges::find_if(
      list, [&](const ChallengeRef& element) { return element && *element == *challenge; });
  if (found == list.end()) return false;
  list.erase(found);
  return true;
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
  removeFirst(newChallenges, challenge);
}

void ChallengeData::removeInProgressChallenge(const ChallengeRef& challenge) {
  removeFirst(inProgressChallenges, challenge);
}

ChallengeRef ChallengeData::revealHiddenChallenge() {
  if (hiddenChallenges.empty()) return nullptr;
  ChallengeRef challenge = std::move(hiddenChallenges.back());
  hiddenChallenges.pop_back();
  newChallenges.insert(newChallenges.begin(), challenge);
  return challenge;
}

void ChallengeData::acceptChallenge(const ChallengeRef& challenge) {
  // The caller's reference may be the very element that goes.
  const ChallengeRef kept = challenge;
  if (removeFirst(newChallenges, kept)) inProgressChallenges.push_back(kept);
}

void ChallengeData::completeChallenge(const ChallengeRef& challenge) {
  const ChallengeRef kept = challenge;
  if (removeFirst(inProgressChallenges, kept)) {
    completedChallenges.insert(completedChallenges.begin(), kept);
  }
}

void ChallengeData::addCreatedChallenge(const ChallengeRef& challenge) {
  const ChallengeRef kept = challenge;
  completedChallenges.insert(completedChallenges.begin(), kept);
}

}  // namespace kindora
