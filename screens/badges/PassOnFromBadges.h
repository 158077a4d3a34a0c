// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"

namespace kindora {

/// Hands the challenge to the Badges screen as the one to pass on next, and shows that tab. Nothing
/// happens while the app has fewer than two tabs.
void passOnFromBadges(const ChallengeRef& challenge);

}  // namespace kindora
