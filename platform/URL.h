// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kindora {

/// An absolute or relative address whose text has been checked for characters that no address has.
class URL {
 public:
  /// The address, or none when the text is empty or holds blanks, control characters, non-ASCII
  /// bytes or any of "<>\^`{|} (RFC 3986, section 2), or a "%" without two hexadecimal digits.
  [[nodiscard]] static std::optional<URL> URLWithString(std::string_view text);

  [[nodiscard]] const std::string& absoluteString() const { return text_; }
  friend bool operator==(const URL&, const URL&) = default;

 private:
  explicit URL(std::string_view text) : text_(text) {}
  std::string text_;
};

}  // namespace kindora
