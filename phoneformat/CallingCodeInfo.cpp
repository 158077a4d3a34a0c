// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/CallingCodeInfo.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

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

WrittenNumber split(const CallingCodeInfo& info, std::string_view digits) {
  if (digits.starts_with(info.callingCode)) {
    return {info.callingCode, std::nullopt, digits.substr(info.callingCode.size())};
  }
  const PrefixText trunk = info.matchingTrunkCode(digits);
  return {std::nullopt, trunk, digits.substr(trunk.value_or("").size())};
}

}  // namespace

void CallingCodeInfo::buildIndex() {
  for (RuleSet& set : ruleSets) set.buildIndex();
  index_->build(ruleSets);
}

std::optional<std::string_view> CallingCodeInfo::matchingAccessCode(std::string_view digits) const {
  return firstPrefix(intlPrefixes, digits);
}

std::optional<std::string_view> CallingCodeInfo::matchingTrunkCode(std::string_view digits) const {
  return firstPrefix(trunkPrefixes, digits);
}

// Whether one of the sets that may hold the digits is accepted, asked in order up to that one.
template <typename Accept>
bool CallingCodeInfo::anySet(std::string_view digits, Accept accept) const {
  if (index_->empty()) return std::ranges::any_of(ruleSets, accept);
  for (std::uint64_t left = index_->setsFor(digits); left != 0; left &= left - 1) {
    if (accept(ruleSets[static_cast<std::size_t>(std::countr_zero(left))])) return true;
  }
  return false;
}

std::string CallingCodeInfo::format(std::string_view digits, std::string_view front) const {
  const WrittenNumber number = split(*this, digits);
  // Rules flagged for the prefix come first, whichever their set; the others wait meanwhile.
  const PhoneRule* rule = nullptr;
  anySet(number.national, [&](const RuleSet& set) {
    const RuleSet::Fit fit =
        set.fit(number.national, number.intlPrefix.has_value(), number.trunkPrefix.has_value());
    if (fit.flagged || !rule) rule = fit.flagged ? fit.flagged : fit.any;
    return fit.flagged != nullptr;
  });
  if (rule) {
    return rule->formatIntlPrefixTrunkPrefix(number.national, number.intlPrefix, number.trunkPrefix,
                                             front);
  }
  std::string text(front);
  text += digits;
  if (number.intlPrefix && !number.national.empty()) {
    text.insert(front.size() + number.intlPrefix->size(), 1, ' ');
  }
  return text;
}

bool CallingCodeInfo::isValidPhoneNumber(std::string_view digits) const {
  const WrittenNumber number = split(*this, digits);
  return std::ranges::any_of(std::initializer_list<bool>{true, false}, [&](bool prefixRequired) {
    return anySet(number.national, [&](const RuleSet& set) {
      return set.isValid(number.national, number.intlPrefix, number.trunkPrefix, prefixRequired);
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
