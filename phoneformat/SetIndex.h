// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "phoneformat/RuleSet.h"

namespace kindora {

/// Finds the rule sets of a plan that may hold a number, without looking at any of them.
///
/// It describes the sets as they were when it was built. An empty index says nothing, and its plan
/// looks at all its sets.
class SetIndex final {
 public:
  /// Stays empty for more sets than a mask has bits.
  void build(const std::vector<RuleSet>& sets);

  [[nodiscard]] bool empty() const { return all_ == 0; }
  /// Bit i is clear if surely no rule of set i fits the digits.
  [[nodiscard]] std::uint64_t setsFor(std::string_view digits) const {
    const std::uint64_t sets = digits.size() < kLengths ? byLength_[digits.size()] : all_;
    if (digits.size() < 2) return sets;
    const auto first = static_cast<unsigned>(digits[0] - '0');
    const auto second = static_cast<unsigned>(digits[1] - '0');
    return first > 9 || second > 9 ? sets : sets & byStart_[10 * first + second];
  }

 private:
  static constexpr std::size_t kLengths = 24;
  static constexpr std::size_t kStarts = 100;  // two digits

  std::uint64_t all_ = 0;
  std::array<std::uint64_t, kLengths> byLength_{};
  std::array<std::uint64_t, kStarts> byStart_{};
};

}  // namespace kindora
