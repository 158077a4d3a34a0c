// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/SetIndex.h"

#include <limits>

namespace kindora {

void SetIndex::build(const std::vector<RuleSet>& sets) {
  *this = SetIndex();
  if (sets.size() > std::numeric_limits<std::uint64_t>::digits) return;
  std::uint64_t bit = 1;
  for (const RuleSet& set : sets) {
    all_ |= bit;
    for (std::size_t length = 0; length < kLengths; ++length) {
      if (set.mayHaveLength(length)) byLength_[length] |= bit;
    }
    for (unsigned start = 0; start < kStarts; ++start) {
      if (set.mayStartWith(start / 10, start % 10)) byStart_[start] |= bit;
    }
    bit <<= 1;
  }
}

}  // namespace kindora
