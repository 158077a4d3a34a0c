// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
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
  void build(const std::vector<PhoneRule>& rules);

  [[nodiscard]] bool empty() const { return starts_.empty(); }
  /// The greatest maxLen of all rules.
  [[nodiscard]] std::int32_t longest() const { return longest_; }
  /// Whether some rule is meant for numbers without a prefix.
  [[nodiscard]] bool hasUnflagged() const { return hasUnflagged_; }
  /// Positions of the rules in whose range the value falls, ascending.
  [[nodiscard]] std::span<const std::uint16_t> rulesFor(std::int32_t value) const;

 private:
  // Segment i covers the values from starts_[i] to before starts_[i + 1]; its rules are those of
  // rules_ from firsts_[i] to before firsts_[i + 1].
  std::vector<std::int64_t> starts_;
  std::vector<std::uint32_t> firsts_;
  std::vector<std::uint16_t> rules_;
  std::int32_t longest_ = 0;
  bool hasUnflagged_ = false;
};

}  // namespace kindora
