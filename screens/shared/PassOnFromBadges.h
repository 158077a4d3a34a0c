// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"

namespace kindora {

/// Hands the challenge to the Badges screen, which stands behind the second tab, to be passed on
/// next, and selects that tab. Without such a screen only the tab is selected.
void passOnFromBadges(const ChallengeRef& challenge);

}  // namespace kindora
