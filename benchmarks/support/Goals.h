// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

namespace kindora {

/// What a benchmark is to reach: its time is at most that part of its peer's in the same run.
struct Goal {
  const char* name;
  const char* peer;
  double most;
};

/// Runs the benchmarks as the command line says, prints them as usual, and holds the medians
/// against the goals. Goals of benchmarks that did not run are passed over. Returns how the program
/// leaves: 0 when all were met, 1 when one was missed, 2 for a wrong command line.
[[nodiscard]] int runBenchmarks(int argc, char** argv, std::span<const Goal> goals);

}  // namespace kindora
