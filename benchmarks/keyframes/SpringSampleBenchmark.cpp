// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration reads every frame of a second of the default spring.
#include <benchmark/benchmark.h>

#include <cmath>

#include "benchmarks/support/Goals.h"
#include "benchmarks/support/HeapUse.h"
#include "effects/keyframes/TovSpringAnimation.h"

namespace kindora {
namespace {

constexpr int kRepetitions = 9;
constexpr double kFrames = 60;

NSArrayRef frames(const NSValue& from, const NSValue& to) {
  TovSpringAnimation spring;
  spring.setFromValue(from);
  spring.setToValue(to);
  spring.setDuration(1);
  return spring.values();
}

void readAll(benchmark::State& state, const NSArray& values) {
  const std::size_t count = values.count();
  const std::size_t before = heapuse::allocations();
  for (auto iteration : state) {
    for (std::size_t i = 0; i < count; ++i) {
      const NSValue value = values.objectAtIndex(i);
      benchmark::DoNotOptimize(&value);
    }
  }
  const std::size_t allocations = heapuse::allocations() - before;
  state.counters["allocations"] = static_cast<double>(allocations);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

void springSample(benchmark::State& state) {
  readAll(state, *frames(NSValue::numberWithDouble(0), NSValue::numberWithDouble(1)));
}
BENCHMARK(springSample)->Name("Keyframes/SpringSample")->Repetitions(kRepetitions);

void transformSample(benchmark::State& state) {
  readAll(state, *frames(NSValue::valueWithCATransform3D(CATransform3DMakeScale(1.2, 1.2, 1)),
                         NSValue::valueWithCATransform3D(CATransform3DIdentity)));
}
BENCHMARK(transformSample)->Name("Keyframes/TransformSample")->Repetitions(kRepetitions);

// The same calls with nothing around them.
void bareFunctions(benchmark::State& state) {
  double decay = 5;
  double omega = 8.660254;
  benchmark::DoNotOptimize(decay);
  benchmark::DoNotOptimize(omega);
  for (auto iteration : state) {
    for (double i = 0; i < kFrames; ++i) {
      const double t = i / kFrames;
      float e = std::exp(static_cast<float>(-decay * t));
      float c = std::cos(static_cast<float>(omega * t));
      float s = std::sin(static_cast<float>(omega * t));
      benchmark::DoNotOptimize(e);
      benchmark::DoNotOptimize(c);
      benchmark::DoNotOptimize(s);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kFrames));
}
BENCHMARK(bareFunctions)->Name("Keyframes/BareFunctions")->Repetitions(kRepetitions);

constexpr Goal kGoals[] = {
    {"Keyframes/SpringSample", "Keyframes/BareFunctions", 3},
    {"Keyframes/SpringSample", nullptr, 0, "allocations"},
    {"Keyframes/TransformSample", nullptr, 0, "allocations"},
};

}  // namespace
}  // namespace kindora

int main(int argc, char** argv) { return kindora::runBenchmarks(argc, argv, kindora::kGoals); }
