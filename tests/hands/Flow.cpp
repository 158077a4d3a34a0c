// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/Flow.h"

namespace kindora {

std::vector<Flow> allFlows() {
  std::vector<Flow> all;
  for (const auto& flows :
       {challengeFlows(), creationFlows(), friendFlows(), galleryFlows(), galleryAlertFlows()}) {
    all.insert(all.end(), flows.begin(), flows.end());
  }
  return all;
}

void require(bool holds, const std::string& what) {
  if (!holds) throw CannotGoOn(what);
}

void requireText(Hand& hand, const std::string& field, const std::string& text) {
  const std::string there = hand.textOf(field);
  require(there == text, "\"" + field + "\" holds \"" + there + "\" instead of \"" + text + "\"");
}

}  // namespace kindora
