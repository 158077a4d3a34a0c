// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/RuleSet.h"
#include "phoneformat/SetIndex.h"
#include "phoneformat/Uncopied.h"

namespace kindora {

/// The numbering plan of all countries that share a calling code.
struct CallingCodeInfo {
  /// Lower-case country codes.
  std::set<std::string> countries;
  /// Digits without "+".
  std::string callingCode;
  /// What is dialled before a number of another area.
  std::vector<std::string> trunkPrefixes;
  /// What is dialled before a calling code.
  std::vector<std::string> intlPrefixes;
  std::vector<RuleSet> ruleSets;
  /// Never filled, never read.
  std::vector<std::string> formatStrings;

  /// Makes looking rules up fast. Whoever changes the rules of this very object afterwards calls it
  /// again; copies start without.
  void buildIndex();

  /// The first international or trunk prefix in the list's order, not the longest, with which the
  /// digits begin; none if there is none.
  [[nodiscard]] std::optional<std::string_view> matchingAccessCode(std::string_view digits) const;
  [[nodiscard]] std::optional<std::string_view> matchingTrunkCode(std::string_view digits) const;

  /// The stripped number as this plan writes it. What begins with the plan's own calling code is
  /// taken for an international number, also where a "+" is missing. Digits that fit no rule come
  /// back unchanged, behind a calling code and a space if they had one. All that goes behind the
  /// front.
  [[nodiscard]] std::string format(std::string_view digits, std::string_view front = {}) const;
  /// Whether the stripped number is whole and of a range in use.
  [[nodiscard]] bool isValidPhoneNumber(std::string_view digits) const;
  [[nodiscard]] std::string description() const;

 private:
  template <typename Accept>
  bool anySet(std::string_view digits, Accept accept) const;

  Uncopied<SetIndex> index_;
};

}  // namespace kindora
