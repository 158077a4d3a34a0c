// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "phoneformat/PhoneRule.h"

namespace kindora {

/// The number of digits for which the pattern has room once its first optional part is left out.
[[nodiscard]] std::int32_t digitCount(std::string_view pattern);

/// Why the rule's pattern or range cannot be meant as it is written; none when all is well.
[[nodiscard]] std::optional<std::string> mistakeIn(const PhoneRule& rule);

}  // namespace kindora
