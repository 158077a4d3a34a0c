// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Places in UTF-8 texts, counted as text fields count them: in UTF-16 units.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kindora {

/// Part of a text, in UTF-16 units from its beginning; empty for a caret.
struct NSRange {
  std::size_t location = 0;
  std::size_t length = 0;
  [[nodiscard]] constexpr std::size_t end() const { return location + length; }
  friend constexpr bool operator==(const NSRange&, const NSRange&) = default;
};

/// The text's length in UTF-16 units. A broken character counts as one.
[[nodiscard]] std::size_t utf16Length(std::string_view text);

/// The byte at which that UTF-16 unit begins: the text's size behind its end, and the character's
/// first byte when the offset lies between two surrogates.
[[nodiscard]] std::size_t utf8Offset(std::string_view text, std::size_t utf16Offset);

/// The character that begins at the byte, which must lie within the text, and moves on behind it. A
/// broken one is the replacement character.
[[nodiscard]] char32_t nextCharacter(std::string_view text, std::size_t& at);

/// The text with the range replaced. A range that reaches beyond the end stops there.
[[nodiscard]] std::string stringByReplacingCharactersInRange(std::string_view text, NSRange range,
                                                             std::string_view replacement);

/// The text without white space and line breaks at either end, those beyond ASCII included.
[[nodiscard]] std::string stringByTrimmingWhitespaceAndNewlines(std::string_view text);

}  // namespace kindora
