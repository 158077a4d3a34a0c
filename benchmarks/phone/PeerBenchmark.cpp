// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The same work by libphonenumber.
#include <benchmark/benchmark.h>
#include <phonenumbers/asyoutypeformatter.h>
#include <phonenumbers/phonenumberutil.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>
#include <string>

#include "benchmarks/phone/Numbers.h"
#include "benchmarks/phone/PerItem.h"

namespace kindora::phonebench {
namespace {

using i18n::phonenumbers::AsYouTypeFormatter;
using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

AsYouTypeFormatter& formatterFor(const Country& country) {
  static std::map<std::string, std::unique_ptr<AsYouTypeFormatter>> made;
  auto& formatter = made[country.code];
  if (!formatter) {
    std::string region = country.code;
    std::ranges::transform(region, region.begin(),
                           [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
    formatter.reset(PhoneNumberUtil::GetInstance()->GetAsYouTypeFormatter(region));
  }
  return *formatter;
}

std::size_t type(AsYouTypeFormatter& formatter, const std::string& number) {
  std::string result;
  formatter.Clear();
  for (const char ch : number) {
    formatter.InputDigit(static_cast<unsigned char>(ch), &result);
    benchmark::DoNotOptimize(result);
  }
  return number.size();
}

// National numbers each in its country, international ones all in one.
std::size_t typeAll(std::string Number::*which) {
  std::size_t keys = 0;
  for (const Country& country : countries()) {
    AsYouTypeFormatter& formatter =
        formatterFor(which == &Number::national ? country : countries().front());
    for (const Number& number : country.numbers) keys += type(formatter, number.*which);
  }
  return keys;
}

void keystrokes(benchmark::State& state, std::string Number::*which) {
  typeAll(which);  // What it keeps of expressions and plans is there when the clock starts.
  perItem(state, [&] { return typeAll(which); });
}
BENCHMARK_CAPTURE(keystrokes, national, &Number::national)
    ->Name("Phone/KeystrokeNationalPeer")
    ->UseManualTime();
BENCHMARK_CAPTURE(keystrokes, international, &Number::international)
    ->Name("Phone/KeystrokeInternationalPeer")
    ->UseManualTime();

template <typename Answer>
std::size_t answerAll(Answer answer) {
  const PhoneNumberUtil& peer = *PhoneNumberUtil::GetInstance();
  std::size_t numbers = 0;
  for (const Country& country : countries()) {
    for (const Number& number : country.numbers) {
      PhoneNumber parsed;
      peer.Parse(number.international, "US", &parsed);
      answer(peer, parsed);
      ++numbers;
    }
  }
  return numbers;
}

void valid(benchmark::State& state) {
  const auto answer = [](const PhoneNumberUtil& peer, const PhoneNumber& number) {
    benchmark::DoNotOptimize(peer.IsValidNumber(number));
  };
  answerAll(answer);
  perItem(state, [&] { return answerAll(answer); });
}
BENCHMARK(valid)->Name("Phone/ValidPeer")->UseManualTime();

void format(benchmark::State& state) {
  std::string result;
  const auto answer = [&](const PhoneNumberUtil& peer, const PhoneNumber& number) {
    peer.Format(number, PhoneNumberUtil::INTERNATIONAL, &result);
    benchmark::DoNotOptimize(result);
  };
  answerAll(answer);
  perItem(state, [&] { return answerAll(answer); });
}
BENCHMARK(format)->Name("Phone/FormatPeer")->UseManualTime();

}  // namespace
}  // namespace kindora::phonebench
