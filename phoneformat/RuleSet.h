// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/PhoneRule.h"
#include "phoneformat/RuleIndex.h"
#include "phoneformat/Uncopied.h"

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
  void buildIndex() { index_->build(rules, matchLen); }

  /// False if surely no rule fits a number of that many digits, or one that begins with the two
  /// digits, each 0 to 9.
  [[nodiscard]] bool mayHaveLength(std::size_t length) const {
    const auto size = static_cast<std::int64_t>(length);
    return size >= matchLen && (index_->empty() || size <= index_->longest());
  }
  [[nodiscard]] bool mayStartWith(unsigned first, unsigned second) const {
    return index_->empty() || index_->mayStartWith(first, second);
  }
  /// The rules by which the digits can be laid out, null where there is none.
  struct Fit {
    /// The first that is flagged for the prefix given, or unflagged when none is given.
    const PhoneRule* flagged = nullptr;
    /// The first of any flags, but for trunk prefixes where both prefixes are given; not looked for
    /// behind a flagged one.
    const PhoneRule* any = nullptr;
  };
  [[nodiscard]] Fit fit(std::string_view digits, bool intl, bool trunk) const;
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

  Uncopied<RuleIndex> index_;
};

}  // namespace kindora
