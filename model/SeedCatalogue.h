// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "model/Challenge.h"

namespace kindora {

/// Where a challenge of the catalogue waits at the start.
enum class SeedPlace { kNew, kInProgress, kHidden };

struct SeedChallenge {
  ChallengeRef challenge;
  SeedPlace place = SeedPlace::kNew;
};

/// Makes the eight sample challenges anew, each with a sender of its own. A picture that the app's
/// resources lack stays absent.
[[nodiscard]] std::vector<SeedChallenge> makeSeedCatalogue();

}  // namespace kindora
