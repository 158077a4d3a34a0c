// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Screens that other screens make by their name in the storyboard.
inline constexpr const char* kBadgeInfoScene = "BadgeInfoViewController";
inline constexpr const char* kPickerScene = "KindoraTableViewController";

}  // namespace kindora
