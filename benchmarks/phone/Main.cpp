// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/phone/FirstUse.h"
#include "benchmarks/support/Goals.h"

namespace {

// Against libphonenumber, but for the slowest country, whose peer is the mean of all.
constexpr kindora::Goal kGoals[] = {
    {"Phone/KeystrokeNational", "Phone/KeystrokeNationalPeer", 1.0 / 25},
    {"Phone/KeystrokeInternational", "Phone/KeystrokeInternationalPeer", 1.0 / 25},
    {"Phone/Valid", "Phone/ValidPeer", 1.0 / 60},
    {"Phone/Format", "Phone/FormatPeer", 1.0 / 60},
    {"Phone/KeystrokeSlowestCountry", "Phone/KeystrokeMeanCountry", 3.0},
};

}  // namespace

int main(int argc, char** argv) {
  // Before anything else has used the peer, since its first use comes only once.
  const bool firstUse = kindora::phonebench::compareFirstUse();
  const int status = kindora::runBenchmarks(argc, argv, kGoals);
  return status == 0 && !firstUse ? 1 : status;
}
