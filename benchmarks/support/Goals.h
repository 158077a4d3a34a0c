// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

namespace kindora {

/// What a benchmark is to reach.
struct Goal {
  const char* name;               ///< with its arguments, if it has any
  const char* peer;               ///< what it is compared with; null compares with 1
  double most;                    ///< the greatest quotient of the two
  const char* counter = nullptr;  ///< the counter to compare; null compares the time
};

/// Runs the benchmarks as the arguments say and holds the medians of their repetitions against the
/// goals; goals whose benchmarks did not run are passed over. Answers the exit code of a program: 1
/// when a goal is missed, 2 when an argument is unknown.
[[nodiscard]] int runBenchmarks(int argc, char** argv, std::span<const Goal> goals);

}  // namespace kindora
