// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace kindora::layout {

/// A number that a solver finds. Made by Solver::makeVariable and meant for that solver alone; the
/// handle of a variable that was removed is known as such and never names a later one.
struct Variable {
  std::uint32_t index = 0;
  std::uint32_t generation = 0;  ///< 0: names nothing
  friend constexpr bool operator==(const Variable&, const Variable&) = default;
};

}  // namespace kindora::layout
