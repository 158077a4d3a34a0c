// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace kindora {

void fatalError(std::string_view message) {
  std::fprintf(stderr, "fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
  std::abort();
}

}  // namespace kindora
