// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/PhoneRule.h"
#include "phoneformat/RuleIndex.h"

namespace kindora {

/// Rules that compare the same number of leading digits. The first that fits wins.
///
/// Formatting and validation differ on purpose: formatting takes a number that is still too short,
/// and what each does when no rule is meant for the prefix that was written is not the same.
struct RuleSet {
  /// At least one rule has the flag.
  bool hasRuleWithIntlPrefix = false;
  bool hasRuleWithTrunkPrefix = false;
  /// How many leading digits are compared; a shorter number fits no rule.
  std::int32_t matchLen = 0;
  std::vector<PhoneRule> rules;

  /// Adds the rule and keeps the two flags true to the rules.
  void append(PhoneRule rule);
  /// Makes looking rules up fast. Whoever changes the rules of this very object afterwards calls it
  /// again; copies start without.
  void buildIndex() { index_.build(rules, matchLen); }

  /// False if surely no rule fits the digits, told quickly; true otherwise.
  [[nodiscard]] bool mayFit(std::string_view digits, bool intl, bool trunk,
                            bool prefixRequired) const {
    const auto size = static_cast<std::int64_t>(digits.size());
    if (size < matchLen) return false;
    if (index_.empty()) return true;
    if (size > index_.longest() || !index_.mayHold(digits)) return false;
    if (!prefixRequired) return true;
    if (!intl && !trunk) return index_.hasUnflagged();
    return (intl && hasRuleWithIntlPrefix) || (trunk && hasRuleWithTrunkPrefix);
  }
  /// The digits laid out by the first rule that fits; none when there is none. With prefixRequired
  /// only rules that are flagged for the prefix given count, or unflagged ones when none is given.
  [[nodiscard]] std::optional<std::string> format(std::string_view digits, PrefixText intlPrefix,
                                                  PrefixText trunkPrefix,
                                                  bool prefixRequired) const;
  /// Whether a rule of exactly that length fits.
  [[nodiscard]] bool isValid(std::string_view digits, PrefixText intlPrefix, PrefixText trunkPrefix,
                             bool prefixRequired) const;
  [[nodiscard]] std::string description() const;

 private:
  template <typename Accept>
  [[nodiscard]] const PhoneRule* firstInRange(std::string_view digits, Accept accept) const;

  RuleIndex index_;
};

}  // namespace kindora
