// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/KnownFailures.h"

#include <algorithm>
#include <vector>

namespace kindora {
namespace {

struct KnownFailures {
  const char* reason;
  std::vector<HandKind> hands;
  std::vector<const char*> flows;
};

const std::vector<HandKind> kAllHands{HandKind::finger, HandKind::keys, HandKind::assistive,
                                      HandKind::inputMethod};

// A flow stands with what stops a hand first.
const std::vector<KnownFailures>& knownFailures() {
  static const std::vector<KnownFailures> table{
      {"a disabled button does not say so", kAllHands, {"DisabledButton"}},
  };
  return table;
}

}  // namespace

std::optional<std::string> knownFailure(const std::string& flow, HandKind hand) {
  for (const KnownFailures& failures : knownFailures()) {
    if (std::ranges::count(failures.hands, hand) > 0 &&
        std::ranges::count(failures.flows, flow) > 0) {
      return failures.reason;
    }
  }
  return std::nullopt;
}

}  // namespace kindora
