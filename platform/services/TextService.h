// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace kindora {

/// What text needs of Unicode, the same under every system locale. All texts are UTF-8.
class TextService {
 public:
  virtual ~TextService() = default;
  /// Unicode collation (root locale): negative when a sorts before b, 0 when equal, else positive.
  [[nodiscard]] virtual int compare(std::string_view a, std::string_view b) const = 0;
  /// Whether it is a decimal digit of any script.
  [[nodiscard]] virtual bool isDecimalDigit(char32_t character) const = 0;
  /// The text as it is compared when case does not matter: full case folding, which leaves accents
  /// as they are. ASCII text comes back with its letters in lower case.
  [[nodiscard]] virtual std::string caseFolded(std::string_view text) const = 0;
  /// Each word's first letter in upper case, the rest in lower case.
  [[nodiscard]] virtual std::string capitalized(std::string_view text) const = 0;
};

}  // namespace kindora
