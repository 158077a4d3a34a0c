// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// The index of the tab with the badges.
inline constexpr int kBadgesTab = 1;

}  // namespace kindora
