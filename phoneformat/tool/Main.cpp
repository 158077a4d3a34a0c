// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <cstddef>
#include <optional>
#include <span>

#include "phoneformat/tool/Arguments.h"
#include "phoneformat/tool/Commands.h"

int main(int argc, char** argv) {
  const std::span<const char* const> all(argv, static_cast<std::size_t>(argc));
  const std::optional<kindora::Arguments> arguments =
      kindora::parseArguments(all.subspan(argc > 0 ? 1 : 0));
  if (!arguments) {
    kindora::printUsage();
    return static_cast<int>(kindora::ExitCode::usage);
  }
  return static_cast<int>(kindora::runCommand(*arguments));
}
