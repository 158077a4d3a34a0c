// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/tool/Arguments.h"

#include <cstddef>
#include <string_view>

namespace kindora {
namespace {

constexpr std::string_view kCountry = "--country";
constexpr std::string_view kData = "--data";
constexpr std::string_view kEndOfOptions = "--";

}  // namespace

std::optional<Arguments> parseArguments(std::span<const char* const> arguments) {
  std::vector<std::string> words;
  Arguments result;
  bool options = true;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view word = arguments[i];
    if (options && word == kEndOfOptions) {
      options = false;
    } else if (options && (word == kCountry || word == kData)) {
      if (++i == arguments.size()) return std::nullopt;
      (word == kCountry ? result.country : result.data) = arguments[i];
    } else if (options && word.starts_with('-')) {
      return std::nullopt;
    } else {
      words.emplace_back(word);
    }
  }
  if (words.empty()) return std::nullopt;
  result.command = words.front();
  result.operands.assign(words.begin() + 1, words.end());
  return result;
}

}  // namespace kindora
