// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/support/Goals.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace kindora {
namespace {

// Prints as usual and keeps every repetition's time.
class KeepingReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
        times_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

  // 0 when the benchmark did not run.
  [[nodiscard]] double median(const std::string& name) {
    std::vector<double>& times = times_[name];
    if (times.empty()) return 0;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace

int runBenchmarks(int argc, char** argv, std::span<const Goal> goals) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  KeepingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  bool met = true;
  for (const Goal& goal : goals) {
    const double own = reporter.median(goal.name);
    const double peer = reporter.median(goal.peer);
    if (own == 0 || peer == 0) continue;
    const bool good = own <= goal.most * peer;
    met = met && good;
    std::printf("%s / %s = %.4f, goal at most %.4f: %s\n", goal.name, goal.peer, own / peer,
                goal.most, good ? "met" : "missed");
  }
  return met ? 0 : 1;
}

}  // namespace kindora
