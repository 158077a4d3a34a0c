// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "model/Challenge.h"

namespace kindora {

/// The store of all challenges, each in at most one of four lists. Its operations move challenges
/// and never change them; one that does not find its challenge, which is looked for by identity,
/// does nothing. Main queue only.
class ChallengeData final {
 public:
  using List = std::vector<ChallengeRef>;

  /// A store filled from the seed catalogue.
  ChallengeData();
  ChallengeData(const ChallengeData&) = delete;
  ChallengeData& operator=(const ChallengeData&) = delete;

  /// The one store of the process, made at the first call.
  [[nodiscard]] static ChallengeData& sharedInstance();

  /// Takes the challenge out of newChallenges.
  void rejectChallenge(const ChallengeRef& challenge);
  /// Takes the challenge out of inProgressChallenges.
  void removeInProgressChallenge(const ChallengeRef& challenge);
  /// Moves the last hidden challenge to the front of newChallenges and returns it; none when
  /// nothing is hidden.
  ChallengeRef revealHiddenChallenge();
  /// Moves the challenge from newChallenges to the end of inProgressChallenges.
  void acceptChallenge(const ChallengeRef& challenge);
  /// Moves the challenge from inProgressChallenges to the front of completedChallenges.
  void completeChallenge(const ChallengeRef& challenge);
  /// Puts the challenge in front of completedChallenges, even when it is there already.
  void addCreatedChallenge(const ChallengeRef& challenge);

  /// Not delivered yet; delivered from the end.
  List hiddenChallenges;
  /// Delivered, neither accepted nor rejected; the latest first.
  List newChallenges;
  /// Accepted; the oldest first.
  List inProgressChallenges;
  /// Completed or made by the user; the latest first.
  List completedChallenges;
};

}  // namespace kindora
