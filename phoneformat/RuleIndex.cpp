// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/RuleIndex.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace kindora {
namespace {

// Beyond this many places a rule the ranges overlap too much.
constexpr std::size_t kMostPlacesPerRule = 8;
constexpr std::size_t kMostRules = 0xFFFF;
// So many digits have a value that fits.
constexpr std::int32_t kMostDigits = 9;

// For each first digit, in bits, which second ones a number in some rule's range can have. A value
// of fewer digits than are compared is that of a number with zeros in front, or of one in which
// something that is no digit ends the value; what it begins with is not known then.
std::array<std::uint16_t, 10> twoDigitStarts(const std::vector<PhoneRule>& rules,
                                             std::int32_t matchLen) {
  std::array<std::uint16_t, 10> result;
  const bool unknown = matchLen < 2 || matchLen > kMostDigits;
  std::int64_t unit = 1;
  for (std::int32_t i = 2; i < matchLen && !unknown; ++i) unit *= 10;
  const bool endsEarly = std::ranges::any_of(
      rules, [&](const PhoneRule& rule) { return rule.minVal < 10 * unit && rule.maxVal >= 0; });
  result.fill(unknown || endsEarly ? 0x3FF : 0);
  if (unknown || endsEarly) return result;
  for (const PhoneRule& rule : rules) {
    for (std::int64_t two = std::max<std::int64_t>(0, rule.minVal / unit);
         two <= std::min<std::int64_t>(99, rule.maxVal / unit); ++two) {
      result[static_cast<std::size_t>(two / 10)] |= static_cast<std::uint16_t>(1U << two % 10);
    }
  }
  return result;
}

}  // namespace

void RuleIndex::build(const std::vector<PhoneRule>& rules, std::int32_t matchLen) {
  *this = RuleIndex();
  if (rules.empty() || rules.size() > kMostRules) return;
  // Behind the greatest value no segment can begin.
  const auto isGreatest = [](const PhoneRule& rule) {
    return rule.maxVal == std::numeric_limits<std::int32_t>::max();
  };
  if (std::ranges::any_of(rules, isGreatest)) return;
  std::vector<std::int32_t> starts;
  starts.reserve(2 * rules.size());
  for (const PhoneRule& rule : rules) {
    if (rule.minVal > rule.maxVal) continue;
    starts.push_back(rule.minVal);
    starts.push_back(rule.maxVal + 1);
  }
  std::ranges::sort(starts);
  starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
  const auto segment = [&](std::int32_t value) {
    return static_cast<std::size_t>(std::ranges::lower_bound(starts, value) - starts.begin());
  };

  std::vector<std::uint32_t> firsts(starts.size() + 1);
  std::size_t places = 0;
  for (const PhoneRule& rule : rules) {
    if (rule.minVal > rule.maxVal) continue;
    const std::size_t end = segment(rule.maxVal + 1);
    for (std::size_t i = segment(rule.minVal); i < end; ++i) {
      ++firsts[i + 1];
      if (++places > kMostPlacesPerRule * rules.size()) return;
    }
  }
  for (std::size_t i = 1; i < firsts.size(); ++i) firsts[i] += firsts[i - 1];
  std::vector<std::uint16_t> ordered(places);
  // From the last rule on, each segment is filled from its end, which moves firsts[i + 1] down to
  // where the segment begins.
  for (std::size_t r = rules.size(); r-- > 0;) {
    if (rules[r].minVal > rules[r].maxVal) continue;
    const std::size_t end = segment(rules[r].maxVal + 1);
    for (std::size_t i = segment(rules[r].minVal); i < end; ++i) {
      ordered[--firsts[i + 1]] = static_cast<std::uint16_t>(r);
    }
  }
  segments_.reserve(starts.size());
  for (std::size_t i = 0; i < starts.size(); ++i) segments_.push_back({starts[i], firsts[i + 1]});
  rules_ = std::move(ordered);
  twoDigits_ = twoDigitStarts(rules, matchLen);
  for (const PhoneRule& rule : rules) longest_ = std::max(longest_, rule.maxLen);
}

std::span<const std::uint16_t> RuleIndex::rulesFor(std::int32_t value) const {
  if (segments_.empty()) return {};
  // Halves without a branch, since which half it is cannot be foreseen.
  const Segment* segment = segments_.data();
  for (std::size_t left = segments_.size(); left > 1;) {
    const std::size_t half = left / 2;
    segment += segment[half].start <= value ? half : 0;
    left -= half;
  }
  if (value < segment->start || segment == &segments_.back()) return {};
  return {rules_.data() + segment->first, rules_.data() + (segment + 1)->first};
}

}  // namespace kindora
