// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/RuleSet.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "phoneformat/TextList.h"

namespace kindora {
namespace {

// The decimal value of the first count characters, up to the first that is no digit; the greatest
// value where it would not fit.
std::int32_t leadingValue(std::string_view digits, std::size_t count) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  for (const char ch : digits.substr(0, count)) {
    if (ch < '0' || ch > '9') break;
    value = value * 10 + (ch - '0');
    if (value >= kMost) return static_cast<std::int32_t>(kMost);
  }
  return static_cast<std::int32_t>(value);
}

// The test of the first pass.
bool passesPrefixTest(const PhoneRule& rule, bool intl, bool trunk, bool required) {
  if (trunk && rule.hasTrunkPrefix()) return true;
  if (intl && rule.hasIntlPrefix()) return true;
  if (intl || trunk) return false;
  return !required || (!rule.hasTrunkPrefix() && !rule.hasIntlPrefix());
}

bool startsFit(const PhoneRule& rule, std::string_view digits) {
  return static_cast<std::int64_t>(digits.size()) <= rule.maxLen;
}

bool lengthFits(const PhoneRule& rule, std::string_view digits) {
  return static_cast<std::int64_t>(digits.size()) == rule.maxLen;
}

}  // namespace

void RuleSet::append(PhoneRule rule) {
  hasRuleWithIntlPrefix = hasRuleWithIntlPrefix || rule.hasIntlPrefix();
  hasRuleWithTrunkPrefix = hasRuleWithTrunkPrefix || rule.hasTrunkPrefix();
  rules.push_back(std::move(rule));
}

// The first rule in whose range the digits fall and that is accepted.
template <typename Accept>
const PhoneRule* RuleSet::firstInRange(std::string_view digits, Accept accept) const {
  const auto count = static_cast<std::size_t>(matchLen);
  if (index_->empty()) {
    const std::int32_t value = leadingValue(digits, count);
    for (const PhoneRule& rule : rules) {
      if (rule.minVal <= value && value <= rule.maxVal && accept(rule)) return &rule;
    }
    return nullptr;
  }
  for (const std::uint16_t position : index_->rulesFor(leadingValue(digits, count))) {
    if (accept(rules[position])) return &rules[position];
  }
  return nullptr;
}

RuleSet::Fit RuleSet::fit(std::string_view digits, bool intl, bool trunk) const {
  Fit result;
  if (!mayHaveLength(digits.size())) return result;
  result.flagged = firstInRange(digits, [&](const PhoneRule& rule) {
    if (!startsFit(rule, digits)) return false;
    if (!result.any && (!intl || !trunk || rule.hasTrunkPrefix())) result.any = &rule;
    return passesPrefixTest(rule, intl, trunk, true);
  });
  return result;
}

std::optional<std::string> RuleSet::format(std::string_view digits, PrefixText intlPrefix,
                                           PrefixText trunkPrefix, bool prefixRequired) const {
  const bool bare = !intlPrefix && !trunkPrefix;
  const Fit found = fit(digits, intlPrefix.has_value(), trunkPrefix.has_value());
  const bool flaggedFirst = prefixRequired || (found.flagged && !bare);
  const PhoneRule* const rule = flaggedFirst ? found.flagged : found.any;
  if (!rule) return std::nullopt;
  return rule->formatIntlPrefixTrunkPrefix(digits, intlPrefix, trunkPrefix);
}

bool RuleSet::isValid(std::string_view digits, PrefixText intlPrefix, PrefixText trunkPrefix,
                      bool prefixRequired) const {
  const bool intl = intlPrefix.has_value();
  const bool trunk = trunkPrefix.has_value();
  if (!mayHaveLength(digits.size())) return false;

  if (firstInRange(digits, [&](const PhoneRule& rule) {
        return lengthFits(rule, digits) && passesPrefixTest(rule, intl, trunk, prefixRequired);
      })) {
    return true;
  }
  if (prefixRequired) return false;
  if (intl && !hasRuleWithIntlPrefix) {
    return firstInRange(digits, [&](const PhoneRule& rule) {
             return lengthFits(rule, digits) && (!trunk || rule.hasTrunkPrefix());
           }) != nullptr;
  }
  if (!trunk || hasRuleWithTrunkPrefix) return false;
  return firstInRange(digits, [&](const PhoneRule& rule) {
           return lengthFits(rule, digits) && (!intl || rule.hasIntlPrefix());
         }) != nullptr;
}

std::string RuleSet::description() const {
  std::vector<std::string> texts;
  texts.reserve(rules.size());
  for (const PhoneRule& rule : rules) texts.push_back(rule.description());
  return "RuleSet: { matchLen: " + std::to_string(matchLen) + ", rules: " + textList(texts) + " }";
}

}  // namespace kindora
