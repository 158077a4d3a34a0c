// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeText.h"

#include <algorithm>
#include <cstddef>

namespace kindora {
namespace {

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
char raised(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), [](char c) { return lowered(c); });
  return result;
}

}  // namespace

int FakeText::compare(std::string_view a, std::string_view b) const {
  const int folded = lowered(a).compare(lowered(b));
  return folded != 0 ? folded : a.compare(b);
}

bool FakeText::isDecimalDigit(char32_t character) const {
  // One script beyond ASCII: Arabic-Indic.
  return (character >= U'0' && character <= U'9') || (character >= 0x660 && character <= 0x669);
}

std::string FakeText::caseFolded(std::string_view text) const {
  std::string result = lowered(text);
  // One letter beyond ASCII, which is enough to tell folding by bytes from folding by letters.
  constexpr std::string_view kCapital = "\u00c9";
  constexpr std::string_view kSmall = "\u00e9";
  for (std::size_t at = 0; (at = result.find(kCapital, at)) != std::string::npos;) {
    std::ranges::copy(kSmall, result.begin() + static_cast<std::ptrdiff_t>(at));  // as long
  }
  return result;
}

std::string FakeText::capitalized(std::string_view text) const {
  std::string result = lowered(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (i == 0 || result[i - 1] == ' ') result[i] = raised(result[i]);
  }
  return result;
}

}  // namespace kindora
