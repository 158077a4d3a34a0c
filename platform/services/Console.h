// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace kindora {

/// Where the program writes its few log lines.
class Console {
 public:
  virtual ~Console() = default;
  /// Writes the text and a newline as one piece; any thread.
  virtual void printLine(std::string_view text) = 0;
};

}  // namespace kindora
