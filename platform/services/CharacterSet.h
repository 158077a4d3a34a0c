// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <set>
#include <string_view>

namespace kindora {

/// Characters by kind and one by one.
class CharacterSet final {
 public:
  /// All decimal digits of Unicode.
  [[nodiscard]] static CharacterSet decimalDigitCharacterSet();
  /// Adds each character of the text (UTF-8).
  void addCharactersInString(std::string_view text);
  [[nodiscard]] bool characterIsMember(char32_t character) const;

 private:
  CharacterSet() = default;
  std::set<char32_t> added_;
};

}  // namespace kindora
