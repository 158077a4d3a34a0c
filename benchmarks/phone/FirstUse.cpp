// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/phone/FirstUse.h"

#include <phonenumbers/asyoutypeformatter.h>
#include <phonenumbers/phonenumberutil.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>

#include "benchmarks/phone/PerItem.h"
#include "phoneformat/LuPhoneFormat.h"

namespace kindora::phonebench {
namespace {

constexpr double kMostPart = 1.0 / 10;

struct Cost {
  double microseconds = 0;
  double kibibytes = 0;
};

// Pages of the process that are in memory.
double residentKibibytes() {
  std::ifstream file("/proc/self/statm");
  long total = 0;
  long resident = 0;
  file >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

// What the work, whose result is kept meanwhile, takes.
template <typename Work>
Cost cost(Work work) {
  const double before = residentKibibytes();
  const double start = threadSeconds();
  const auto kept = work();
  const double spent = threadSeconds() - start;
  return {spent * 1e6, residentKibibytes() - before};
}

Cost ownCost() {
  return cost([] {
    auto formatter =
        std::make_unique<LuPhoneFormat>(*readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE), "us");
    static_cast<void>(formatter->format("6"));
    return formatter;
  });
}

Cost peerCost() {
  return cost([] {
    std::unique_ptr<i18n::phonenumbers::AsYouTypeFormatter> formatter(
        i18n::phonenumbers::PhoneNumberUtil::GetInstance()->GetAsYouTypeFormatter("US"));
    std::string result;
    formatter->InputDigit('6', &result);
    return formatter;
  });
}

bool compare(const char* what, double own, double peer) {
  const bool met = own <= kMostPart * peer;
  std::printf("%s: %.1f against %.1f, %.4f of it, goal at most %.4f: %s\n", what, own, peer,
              own / peer, kMostPart, met ? "met" : "missed");
  return met;
}

}  // namespace

bool compareFirstUse() {
  const Cost own = ownCost();
  const Cost peer = peerCost();
  const bool time = compare("Phone/Create, microseconds", own.microseconds, peer.microseconds);
  const bool memory = compare("Phone/Memory, KiB", own.kibibytes, peer.kibibytes);
  return time && memory;
}

}  // namespace kindora::phonebench
