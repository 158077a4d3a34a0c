// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/Pattern.h"

#include <algorithm>

#include "phoneformat/FileLayout.h"

namespace kindora {

std::int32_t digitCount(std::string_view pattern) {
  std::string shown(pattern);
  const std::size_t open = shown.find(phonefile::kOptionalOpen);
  const std::size_t close = shown.find(phonefile::kOptionalClose);
  if (open < close && close != std::string::npos) {
    shown.erase(open, close + phonefile::kOptionalClose.size() - open);
  }
  return static_cast<std::int32_t>(std::ranges::count(shown, '#'));
}

std::optional<std::string> mistakeIn(const PhoneRule& rule) {
  const std::size_t open = rule.format.find(phonefile::kOptionalOpen);
  if (open != std::string::npos &&
      rule.format.find(phonefile::kOptionalClose, open) == std::string::npos) {
    return "\"[[\" without \"]]\" in \"" + rule.format + "\"";
  }
  if (digitCount(rule.format) != rule.maxLen) {
    return "\"" + rule.format + "\" has room for " + std::to_string(digitCount(rule.format)) +
           " digits, not for " + std::to_string(rule.maxLen);
  }
  if (rule.minVal > rule.maxVal) {
    return "the range from " + std::to_string(rule.minVal) + " to " + std::to_string(rule.maxVal) +
           " is empty";
  }
  return std::nullopt;
}

}  // namespace kindora
