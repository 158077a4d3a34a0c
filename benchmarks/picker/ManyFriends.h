// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include "model/User.h"

namespace kindora {

/// Made-up people, the same each time; one in five has a name with a letter beyond ASCII.
[[nodiscard]] std::vector<UserRef> manyFriends(std::size_t count);

}  // namespace kindora
