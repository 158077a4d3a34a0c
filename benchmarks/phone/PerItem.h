// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>
#include <time.h>

#include <cstddef>

namespace kindora::phonebench {

/// Processor time that the calling thread has spent.
inline double threadSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Reports the processor time of the calling thread for the work, and what one of the items that it
/// says it did took of that.
template <typename Work>
void perItem(benchmark::State& state, Work work) {
  double seconds = 0;
  std::size_t items = 0;
  for (auto iteration : state) {
    const double start = threadSeconds();
    items += work();
    const double taken = threadSeconds() - start;
    state.SetIterationTime(taken);
    seconds += taken;
  }
  state.counters["nanosecondsEach"] = seconds * 1e9 / static_cast<double>(items);
}

}  // namespace kindora::phonebench
