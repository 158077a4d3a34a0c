// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "phoneformat/PhoneRule.h"

namespace kindora {

/// Finds the rules of a set whose range holds a value, without looking at the others.
///
/// It describes the rules as they were when it was built. An empty index says nothing, and its set
/// looks at all its rules.
class RuleIndex final {
 public:
  /// Stays empty where ranges overlap so much that it would cost more than it saves, and where one
  /// reaches the greatest value of its type.
  void build(const std::vector<PhoneRule>& rules, std::int32_t matchLen);

  [[nodiscard]] bool empty() const { return segments_.empty(); }
  /// The greatest maxLen of all rules.
  [[nodiscard]] std::int32_t longest() const { return longest_; }
  /// False if no rule holds a number that begins with the two digits, each 0 to 9; true if one may.
  [[nodiscard]] bool mayStartWith(unsigned first, unsigned second) const {
    return (twoDigits_[first] >> second & 1U) != 0;
  }
  /// Positions of the rules in whose range the value falls, ascending.
  [[nodiscard]] std::span<const std::uint16_t> rulesFor(std::int32_t value) const;

 private:
  // The values from start to before that of the next segment; their rules are those of rules_ from
  // first to before that of the next segment, which the last one, without rules, only ends.
  struct Segment {
    std::int32_t start;
    std::uint32_t first;
  };

  std::array<std::uint16_t, 10> twoDigits_{};  // bits of the second digits, by the first
  std::vector<Segment> segments_;
  std::vector<std::uint16_t> rules_;
  std::int32_t longest_ = 0;
};

}  // namespace kindora
