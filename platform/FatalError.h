// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace kindora {

/// Stops the program: prints "fatal error: " and the message to standard error and aborts, in every
/// build type. Only for programming errors from which nobody recovers.
[[noreturn]] void fatalError(std::string_view message);

}  // namespace kindora
