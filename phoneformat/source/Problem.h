// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace kindora {

/// Something wrong with a file, said so that a person finds it.
struct Problem {
  /// "file:line" in a text; "file: calling code 44, rule set 2, rule 7" in a data file, where sets
  /// and rules count from 1.
  std::string place;
  std::string reason;

  [[nodiscard]] std::string text() const { return place + ": " + reason; }
  friend bool operator==(const Problem&, const Problem&) = default;
};

using Problems = std::vector<Problem>;

}  // namespace kindora
