// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace kindora::phonebench {

/// How often operator new has been called so far.
[[nodiscard]] std::uint64_t allocations();

}  // namespace kindora::phonebench
