// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace kindora {

/// At least one ASCII digit, and nothing else.
[[nodiscard]] constexpr bool isAllDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace kindora
