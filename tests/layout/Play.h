// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Random calls of one solver for as long as one likes, held against others that start anew and
// against fractions.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "layout/Solver.h"
#include "tests/layout/ExactSolver.h"

namespace kindora::layout {

/// What kind of constraints a play makes.
enum class Family {
  units,     ///< coefficients 1 and -1
  integers,  ///< to 3
  views,     ///< origins and sizes: edges, centres, multipliers 1 and 1/2
  wide,      ///< 0.01 to 100
};
[[nodiscard]] std::string nameOf(Family family);

struct PlayRules {
  Family family = Family::units;
  std::size_t variables = 6;
  std::size_t mostHeld = 16;
  std::uint64_t seed = 1;
  std::uint64_t calls = 1000;
  std::uint64_t judgedEach = 1;  ///< of so many calls one is held against a solver that starts anew
  bool isExact = false;          ///< hold each call against fractions, too
};

struct PlayResult {
  std::uint64_t calls = 0;
  std::uint64_t refusals = 0;
  std::uint64_t judged = 0;
  std::uint64_t exactCalls = 0;  ///< that fractions of 127 bits could follow
  std::uint64_t requiredMissed = 0;
  std::uint64_t aboveBest = 0;   ///< sums of violations by more than a millionth
  std::uint64_t notNumbers = 0;  ///< calls after which a value is none
  std::uint64_t wrongVerdicts = 0;
  std::uint64_t runaways = 0;  ///< calls of over 10 times the exchanges that fractions take
  std::uint64_t mostExchanges = 0;
  double worstRatio = 0;  ///< of exchanges to those of fractions
  std::string firstFailure;

  [[nodiscard]] bool isRight() const { return firstFailure.empty(); }
  PlayResult& operator+=(const PlayResult& other);
};
std::ostream& operator<<(std::ostream& stream, const PlayResult& result);

[[nodiscard]] PlayResult play(const PlayRules& rules);

}  // namespace kindora::layout
