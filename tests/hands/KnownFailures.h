// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "tests/hands/Hand.h"

namespace kindora {

/// Why a hand cannot do a flow yet; none where it is to succeed. Such a flow is played all the same
/// and has to fail, so that what is mended is taken out of the table.
[[nodiscard]] std::optional<std::string> knownFailure(const std::string& flow, HandKind hand);

}  // namespace kindora
