// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "phoneformat/PhoneRule.h"

namespace kindora {

/// Finds the rules of a set whose range holds a value, without looking at the others.
///
/// It describes the rules as they were when it was built. A copy is empty, since what is copied may
/// be changed; an empty index says nothing, and its set looks at all its rules.
class RuleIndex final {
 public:
  RuleIndex() = default;
  RuleIndex(const RuleIndex&) {}  // NOLINT(bugprone-copy-constructor-init): empty on purpose
  RuleIndex& operator=(const RuleIndex& other) {
    if (this != &other) *this = RuleIndex();
    return *this;
  }
  RuleIndex(RuleIndex&& other) noexcept { *this = std::move(other); }
  RuleIndex& operator=(RuleIndex&& other) noexcept;
  ~RuleIndex() = default;

  /// Stays empty where ranges overlap so much that it would cost more than it saves.
  void build(const std::vector<PhoneRule>& rules, std::int32_t matchLen);

  [[nodiscard]] bool empty() const { return starts_.empty(); }
  /// The greatest maxLen of all rules.
  [[nodiscard]] std::int32_t longest() const { return longest_; }
  /// Whether some rule is meant for numbers without a prefix.
  [[nodiscard]] bool hasUnflagged() const { return hasUnflagged_; }
  /// False if no rule holds a number with these digits; true if one may.
  [[nodiscard]] bool mayHold(std::string_view digits) const {
    if (digits.size() < 2) return true;
    const auto first = static_cast<unsigned>(digits[0] - '0');
    const auto second = static_cast<unsigned>(digits[1] - '0');
    return first > 9 || second > 9 || (twoDigits_[first] >> second & 1U) != 0;
  }
  /// Positions of the rules in whose range the value falls, ascending.
  [[nodiscard]] std::span<const std::uint16_t> rulesFor(std::int32_t value) const;

 private:
  // Segment i covers the values from starts_[i] to before starts_[i + 1]; its rules are those of
  // rules_ from firsts_[i] to before firsts_[i + 1].
  std::array<std::uint16_t, 10> twoDigits_{};  // bits of the second digits, by the first
  std::vector<std::int64_t> starts_;
  std::vector<std::uint32_t> firsts_;
  std::vector<std::uint16_t> rules_;
  std::int32_t longest_ = 0;
  bool hasUnflagged_ = false;
};

}  // namespace kindora
