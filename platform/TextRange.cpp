// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/TextRange.h"

#include <algorithm>
#include <array>

namespace kindora {
namespace {

// Bytes of the character that the byte begins; 1 for a byte that begins none.
std::size_t sequenceLength(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0xF0 && byte < 0xF8) return 4;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  if (byte >= 0xC0 && byte < 0xE0) return 2;
  return 1;
}

// Bytes of the character at the offset, which ends with the text at the latest.
std::size_t characterLength(std::string_view text, std::size_t offset) {
  return std::min(sequenceLength(text[offset]), text.size() - offset);
}

std::size_t unitsOf(std::size_t bytes) { return bytes == 4 ? 2 : 1; }

// All space separators, line and paragraph separators, and the control characters that break lines
// or tabulate.
constexpr std::array<std::string_view, 25> kBlanks{
    "\t",     "\n",     "\v",     "\f",     "\r",     " ",      "\u0085", "\u00A0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

}  // namespace

std::size_t utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t bytes = characterLength(text, at);
    units += unitsOf(bytes);
    at += bytes;
  }
  return units;
}

std::size_t utf8Offset(std::string_view text, std::size_t utf16Offset) {
  std::size_t units = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t bytes = characterLength(text, at);
    units += unitsOf(bytes);
    if (units > utf16Offset) break;
    at += bytes;
  }
  return at;
}

char32_t nextCharacter(std::string_view text, std::size_t& at) {
  constexpr char32_t kReplacement = 0xFFFD;
  const std::size_t wanted = sequenceLength(text[at]);
  const std::size_t bytes = characterLength(text, at);
  const auto first = static_cast<unsigned char>(text[at]);
  const std::string_view rest = text.substr(at + 1, bytes - 1);
  at += bytes;
  if (bytes == 1) return wanted == 1 && first < 0x80 ? first : kReplacement;
  if (bytes < wanted) return kReplacement;
  char32_t character = first & (0xFFU >> (bytes + 1));
  for (const char c : rest) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) != 0x80) return kReplacement;
    character = character << 6U | (byte & 0x3FU);
  }
  return character;
}

std::string stringByReplacingCharactersInRange(std::string_view text, NSRange range,
                                               std::string_view replacement) {
  const std::size_t from = utf8Offset(text, range.location);
  const std::size_t to = std::max(from, utf8Offset(text, range.end()));
  std::string result(text.substr(0, from));
  result += replacement;
  result += text.substr(to);
  return result;
}

std::string stringByTrimmingWhitespaceAndNewlines(std::string_view text) {
  const auto leading = [&](std::string_view blank) { return text.starts_with(blank); };
  const auto trailing = [&](std::string_view blank) { return text.ends_with(blank); };
  for (auto blank = std::ranges::find_if(kBlanks, leading); blank != kBlanks.end();
       blank = std::ranges::find_if(kBlanks, leading)) {
    text.remove_prefix(blank->size());
  }
  for (auto blank = std::ranges::find_if(kBlanks, trailing); blank != kBlanks.end();
       blank = std::ranges::find_if(kBlanks, trailing)) {
    text.remove_suffix(blank->size());
  }
  return std::string(text);
}

}  // namespace kindora
