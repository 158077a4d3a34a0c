// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/support/Goals.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kindora {
namespace {

// Prints as usual and keeps the time and the counters of every repetition.
class KeepingReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      std::string name = run.run_name.function_name;
      if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
      std::map<std::string, std::vector<double>>& figures = figures_[name];
      // Processor time, in which other programs have no say, unless the benchmark keeps the time.
      const bool ownTime = !run.run_name.time_type.empty();
      figures[""].push_back(ownTime ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
      for (const auto& [counter, value] : run.counters) figures[counter].push_back(value);
    }
    ConsoleReporter::ReportRuns(runs);
  }

  [[nodiscard]] std::optional<double> median(const std::string& name, const char* counter) {
    std::vector<double>& figures = figures_[name][counter != nullptr ? counter : ""];
    if (figures.empty()) return std::nullopt;
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
  }

 private:
  std::map<std::string, std::map<std::string, std::vector<double>>> figures_;
};

}  // namespace

int runBenchmarks(int argc, char** argv, std::span<const Goal> goals) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  KeepingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  bool met = true;
  for (const Goal& goal : goals) {
    const auto own = reporter.median(goal.name, goal.counter);
    const auto peer = goal.peer != nullptr ? reporter.median(goal.peer, goal.counter) : 1.0;
    if (!own || !peer) continue;
    const bool good = *own <= goal.most * *peer;
    met = met && good;
    std::printf("%s / %s (%s) = %.4f, goal at most %.4f: %s\n", goal.name,
                goal.peer != nullptr ? goal.peer : "1",
                goal.counter != nullptr ? goal.counter : "time", *own / *peer, goal.most,
                good ? "met" : "missed");
  }
  return met ? 0 : 1;
}

}  // namespace kindora
