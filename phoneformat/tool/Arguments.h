// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kindora {

/// What the command line says.
struct Arguments {
  std::string command;
  std::vector<std::string> operands;
  std::optional<std::string> country;
  std::optional<std::string> data;
};

/// None when an option is unknown or lacks its value, or no command is given. Options may stand
/// anywhere; what follows "--" is an operand.
[[nodiscard]] std::optional<Arguments> parseArguments(std::span<const char* const> arguments);

}  // namespace kindora
