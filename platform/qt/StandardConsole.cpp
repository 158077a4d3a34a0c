// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/StandardConsole.h"

#include <cstdio>
#include <string>

namespace kindora {

void StandardConsole::printLine(std::string_view text) {
  const std::string line = std::string(text) + '\n';
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fflush(stdout);
}

}  // namespace kindora
