// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/RuleIndex.h"

#include <algorithm>
#include <cstddef>

namespace kindora {
namespace {

// Beyond this many places a rule the ranges overlap too much.
constexpr std::size_t kMostPlacesPerRule = 8;
constexpr std::size_t kMostRules = 0xFFFF;

}  // namespace

RuleIndex& RuleIndex::operator=(RuleIndex&& other) noexcept {
  starts_ = std::exchange(other.starts_, {});
  firsts_ = std::exchange(other.firsts_, {});
  rules_ = std::exchange(other.rules_, {});
  longest_ = std::exchange(other.longest_, 0);
  hasUnflagged_ = std::exchange(other.hasUnflagged_, false);
  return *this;
}

void RuleIndex::build(const std::vector<PhoneRule>& rules) {
  *this = RuleIndex();
  if (rules.empty() || rules.size() > kMostRules) return;
  std::vector<std::int64_t> starts;
  starts.reserve(2 * rules.size());
  for (const PhoneRule& rule : rules) {
    if (rule.minVal > rule.maxVal) continue;
    starts.push_back(rule.minVal);
    starts.push_back(std::int64_t{rule.maxVal} + 1);
  }
  std::ranges::sort(starts);
  starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
  const auto segment = [&](std::int64_t value) {
    return static_cast<std::size_t>(std::ranges::lower_bound(starts, value) - starts.begin());
  };

  std::vector<std::uint32_t> firsts(starts.size() + 1);
  std::size_t places = 0;
  for (const PhoneRule& rule : rules) {
    if (rule.minVal > rule.maxVal) continue;
    const std::size_t end = segment(std::int64_t{rule.maxVal} + 1);
    for (std::size_t i = segment(rule.minVal); i < end; ++i) {
      ++firsts[i + 1];
      if (++places > kMostPlacesPerRule * rules.size()) return;
    }
  }
  for (std::size_t i = 1; i < firsts.size(); ++i) firsts[i] += firsts[i - 1];
  std::vector<std::uint16_t> ordered(places);
  std::vector<std::uint32_t> next = firsts;
  for (std::size_t r = 0; r < rules.size(); ++r) {
    if (rules[r].minVal > rules[r].maxVal) continue;
    const std::size_t end = segment(std::int64_t{rules[r].maxVal} + 1);
    for (std::size_t i = segment(rules[r].minVal); i < end; ++i) {
      ordered[next[i]++] = static_cast<std::uint16_t>(r);
    }
  }
  starts_ = std::move(starts);
  firsts_ = std::move(firsts);
  rules_ = std::move(ordered);
  for (const PhoneRule& rule : rules) {
    longest_ = std::max(longest_, rule.maxLen);
    hasUnflagged_ = hasUnflagged_ || (!rule.hasIntlPrefix() && !rule.hasTrunkPrefix());
  }
}

std::span<const std::uint16_t> RuleIndex::rulesFor(std::int32_t value) const {
  const auto after = std::ranges::upper_bound(starts_, std::int64_t{value});
  if (after == starts_.begin()) return {};
  const auto i = static_cast<std::size_t>(after - starts_.begin()) - 1;
  return {rules_.data() + firsts_[i], rules_.data() + firsts_[i + 1]};
}

}  // namespace kindora
