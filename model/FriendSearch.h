// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include "model/User.h"

namespace kindora {

/// The users whose name contains the text, whatever the case of both, in the order of the list.
/// Accents and blanks count. An empty text is never found.
[[nodiscard]] std::vector<UserRef> usersWithNameContaining(const std::vector<UserRef>& users,
                                                           std::string_view text);

}  // namespace kindora
