// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace kindora {

/// Pictures of the app that several screens show.
inline constexpr std::string_view kStampImage = "completed";
inline constexpr std::string_view kCoverImage = "scratchImage";
inline constexpr std::string_view kPlusImage = "plus";

}  // namespace kindora
