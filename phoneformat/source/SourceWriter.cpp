// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <bit>
#include <cstdint>

#include "phoneformat/source/Keywords.h"
#include "phoneformat/source/Pattern.h"
#include "phoneformat/source/SourceText.h"

namespace kindora {
namespace {

using namespace phonesource;

template <typename Texts>
std::string keywordLine(std::string_view keyword, const Texts& texts) {
  if (texts.empty()) return {};
  std::string line(keyword);
  for (const std::string& text : texts) line.append(" ").append(text);
  return line + "\n";
}

// With as many digits as are compared, so that "049" is told from "49".
std::string bound(std::int32_t value, std::int32_t matchLen) {
  const std::string text = std::to_string(std::bit_cast<std::uint32_t>(value));
  const auto width = static_cast<std::size_t>(std::clamp(matchLen, 0, 9));
  return std::string(width - std::min(width, text.size()), '0') + text;
}

std::string quoted(std::string_view pattern) {
  std::string result = "\"";
  for (const char ch : pattern) {
    if (ch == '"' || ch == '\\') result += '\\';
    result += ch;
  }
  return result + "\"";
}

std::string ruleLine(const PhoneRule& rule, std::int32_t matchLen) {
  std::string line = "  ";
  line.append(bound(rule.minVal, matchLen));
  if (rule.maxVal != rule.minVal) line.append("-").append(bound(rule.maxVal, matchLen));
  const std::int32_t prefix = rule.flag12 & kPrefixBits;
  line.append("  ").append(kPrefixes.at(static_cast<std::size_t>(prefix)));
  line.append("  ").append(quoted(rule.format));
  const PhoneRule implied{.maxLen = digitCount(rule.format), .flag12 = prefix};
  for (const Field& field : kFields) {
    const std::int32_t value = rule.*field.member;
    if (value == implied.*field.member) continue;
    line.append(" ").append(field.name).append("=").append(std::to_string(value));
  }
  return line + "\n";
}

}  // namespace

std::string writeSource(std::span<const SourceBlock> blocks) {
  std::string text;
  for (const SourceBlock& block : blocks) {
    const CallingCodeInfo& plan = block.plan;
    if (!text.empty()) text += "\n";
    text += keywordLine(kCode, std::vector{plan.callingCode});
    text += keywordLine(kCountries, plan.countries);
    text += keywordLine(kTrunk, plan.trunkPrefixes);
    text += keywordLine(kAccess, plan.intlPrefixes);
    for (const RuleSet& set : plan.ruleSets) {
      text += keywordLine(kSet, std::vector{std::to_string(set.matchLen)});
      for (const PhoneRule& rule : set.rules) text += ruleLine(rule, set.matchLen);
    }
  }
  return text;
}

}  // namespace kindora
