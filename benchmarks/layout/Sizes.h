// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What the layout benchmarks have in common.
#pragma once

#include <benchmark/benchmark.h>

namespace kindora::layout {

inline constexpr int kRepetitions = 9;
inline constexpr double kWidth = 270;
inline constexpr double kOtherWidth = 320;
inline constexpr double kRowHeight = 44;

inline void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10)->Arg(100)->Arg(1000)->Repetitions(kRepetitions);
}

}  // namespace kindora::layout
