// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration goes through all numbers of all countries.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <numeric>
#include <string_view>
#include <vector>

#include "benchmarks/phone/Allocations.h"
#include "benchmarks/phone/Numbers.h"
#include "benchmarks/phone/PerItem.h"
#include "phoneformat/LuPhoneFormat.h"

namespace kindora::phonebench {
namespace {

// One for each country, with its own plan read.
LuPhoneFormat& formatterFor(const Country& country) {
  static std::map<std::string, std::unique_ptr<LuPhoneFormat>> made;
  auto& formatter = made[country.code];
  if (!formatter) formatter = std::make_unique<LuPhoneFormat>(shippedData(), country.code);
  return *formatter;
}

// Types a number: a field calls the formatter with the whole text at each key.
std::size_t type(LuPhoneFormat& formatter, std::string_view number) {
  for (std::size_t length = 1; length <= number.size(); ++length) {
    benchmark::DoNotOptimize(formatter.format(number.substr(0, length)));
  }
  return number.size();
}

// National numbers each in its country, international ones all in one.
std::size_t typeAll(std::string Number::*which) {
  std::size_t keys = 0;
  for (const Country& country : countries()) {
    LuPhoneFormat& formatter =
        formatterFor(which == &Number::national ? country : countries().front());
    for (const Number& number : country.numbers) keys += type(formatter, number.*which);
  }
  return keys;
}

void keystrokes(benchmark::State& state, std::string Number::*which) {
  typeAll(which);  // What it keeps of plans is there when the clock starts.
  const std::uint64_t before = allocations();
  std::size_t keys = 0;
  perItem(state, [&] {
    const std::size_t round = typeAll(which);
    keys += round;
    return round;
  });
  const double perKey = static_cast<double>(allocations() - before) / static_cast<double>(keys);
  state.counters["allocationsPerKey"] = perKey;
  if (perKey > 1) state.SkipWithError("more than the result is allocated");
}
BENCHMARK_CAPTURE(keystrokes, national, &Number::national)
    ->Name("Phone/KeystrokeNational")
    ->UseManualTime();
BENCHMARK_CAPTURE(keystrokes, international, &Number::international)
    ->Name("Phone/KeystrokeInternational")
    ->UseManualTime();

void valid(benchmark::State& state) {
  LuPhoneFormat formatter(shippedData(), "us");
  perItem(state, [&] {
    std::size_t numbers = 0;
    for (const Country& country : countries()) {
      for (const Number& number : country.numbers) {
        benchmark::DoNotOptimize(formatter.isPhoneNumberValid(number.international));
        ++numbers;
      }
    }
    return numbers;
  });
}
BENCHMARK(valid)->Name("Phone/Valid")->UseManualTime();

void format(benchmark::State& state) {
  LuPhoneFormat formatter(shippedData(), "us");
  perItem(state, [&] {
    std::size_t numbers = 0;
    for (const Country& country : countries()) {
      for (const Number& number : country.numbers) {
        benchmark::DoNotOptimize(formatter.format(number.international));
        ++numbers;
      }
    }
    return numbers;
  });
}
BENCHMARK(format)->Name("Phone/Format")->UseManualTime();

// Seconds that a key takes in each country, the quickest of some rounds, both ways of writing.
const std::vector<double>& secondsByCountry() {
  static const std::vector<double> measured = [] {
    constexpr int kRounds = 200;
    std::vector<double> result;
    for (const Country& country : countries()) {
      LuPhoneFormat& formatter = formatterFor(country);
      double best = 1;
      for (int i = 0; i < kRounds; ++i) {
        std::size_t keys = 0;
        const auto start = std::chrono::steady_clock::now();
        for (const Number& number : country.numbers) {
          keys += type(formatter, number.national) + type(formatter, number.international);
        }
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        best = std::min(best, spent.count() / static_cast<double>(keys));
      }
      result.push_back(best);
    }
    return result;
  }();
  return measured;
}

void slowestCountry(benchmark::State& state) {
  const std::vector<double>& seconds = secondsByCountry();
  const auto slowest = std::ranges::max_element(seconds);
  for (auto iteration : state) state.SetIterationTime(*slowest);
  state.SetLabel(countries()[static_cast<std::size_t>(slowest - seconds.begin())].code);
}
BENCHMARK(slowestCountry)->Name("Phone/KeystrokeSlowestCountry")->UseManualTime()->Iterations(1);

void meanCountry(benchmark::State& state) {
  const std::vector<double>& seconds = secondsByCountry();
  const double sum = std::accumulate(seconds.begin(), seconds.end(), 0.0);
  for (auto iteration : state) state.SetIterationTime(sum / static_cast<double>(seconds.size()));
}
BENCHMARK(meanCountry)->Name("Phone/KeystrokeMeanCountry")->UseManualTime()->Iterations(1);

}  // namespace
}  // namespace kindora::phonebench
