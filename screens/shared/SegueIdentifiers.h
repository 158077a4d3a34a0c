// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace kindora {

inline constexpr std::string_view kShowNewChallenge = "showNewChallenge";
inline constexpr std::string_view kShowInProgressChallenge = "showInProgressChallenge";
inline constexpr std::string_view kShowBadgeDetail = "showBadgeDetail";
inline constexpr std::string_view kKindora = "kindora";
inline constexpr std::string_view kInviteFriend = "inviteFriend";
inline constexpr std::string_view kCreateChallenge = "createChallenge";
inline constexpr std::string_view kUnwind = "unwind";
inline constexpr std::string_view kUnwindToKindora = "unwindToKindora";

}  // namespace kindora
