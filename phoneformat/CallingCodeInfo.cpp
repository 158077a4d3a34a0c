// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/CallingCodeInfo.h"

#include <algorithm>

#include "phoneformat/TextList.h"

namespace kindora {
namespace {

std::optional<std::string_view> firstPrefix(const std::vector<std::string>& prefixes,
                                            std::string_view digits) {
  const auto found = std::ranges::find_if(
      prefixes, [&](const std::string& prefix) { return digits.starts_with(prefix); });
  if (found == prefixes.end()) return std::nullopt;
  return *found;
}

// A number as it was written: its prefix, if any, and the national digits.
struct WrittenNumber {
  PrefixText intlPrefix;
  PrefixText trunkPrefix;
  std::string_view national;
};

bool mayFit(const RuleSet& set, const WrittenNumber& number, bool prefixRequired) {
  return set.mayFit(number.national, number.intlPrefix.has_value(), number.trunkPrefix.has_value(),
                    prefixRequired);
}

WrittenNumber split(const CallingCodeInfo& info, std::string_view digits) {
  if (digits.starts_with(info.callingCode)) {
    return {info.callingCode, std::nullopt, digits.substr(info.callingCode.size())};
  }
  const PrefixText trunk = info.matchingTrunkCode(digits);
  return {std::nullopt, trunk, digits.substr(trunk.value_or("").size())};
}

}  // namespace

std::optional<std::string_view> CallingCodeInfo::matchingAccessCode(std::string_view digits) const {
  return firstPrefix(intlPrefixes, digits);
}

std::optional<std::string_view> CallingCodeInfo::matchingTrunkCode(std::string_view digits) const {
  return firstPrefix(trunkPrefixes, digits);
}

std::string CallingCodeInfo::format(std::string_view digits) const {
  const WrittenNumber number = split(*this, digits);
  for (const bool prefixRequired : {true, false}) {
    for (const RuleSet& set : ruleSets) {
      if (!mayFit(set, number, prefixRequired)) continue;
      std::optional<std::string> text =
          set.format(number.national, number.intlPrefix, number.trunkPrefix, prefixRequired);
      if (text) return *std::move(text);
    }
  }
  std::string text(digits);
  if (number.intlPrefix && !number.national.empty()) text.insert(number.intlPrefix->size(), 1, ' ');
  return text;
}

bool CallingCodeInfo::isValidPhoneNumber(std::string_view digits) const {
  const WrittenNumber number = split(*this, digits);
  return std::ranges::any_of(std::initializer_list<bool>{true, false}, [&](bool prefixRequired) {
    return std::ranges::any_of(ruleSets, [&](const RuleSet& set) {
      return mayFit(set, number, prefixRequired) &&
             set.isValid(number.national, number.intlPrefix, number.trunkPrefix, prefixRequired);
    });
  });
}

std::string CallingCodeInfo::description() const {
  std::vector<std::string> sets;
  sets.reserve(ruleSets.size());
  for (const RuleSet& set : ruleSets) sets.push_back(set.description());
  return "CountryInfo { countries: " + textList(countries) + ", code: " + callingCode +
         ", trunkPrefixes: " + textList(trunkPrefixes) +
         ", intlPrefixes: " + textList(intlPrefixes) + ", rule sets: " + textList(sets) + " }";
}

}  // namespace kindora
