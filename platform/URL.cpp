// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/URL.h"

namespace kindora {
namespace {

bool isHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

}  // namespace

std::optional<URL> URL::URLWithString(std::string_view text) {
  if (text.empty()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c <= ' ' || c > '~' || std::string_view("\"<>\\^`{|}").find(c) != std::string_view::npos) {
      return std::nullopt;
    }
    if (c == '%' && !(i + 2 < text.size() && isHexDigit(text[i + 1]) && isHexDigit(text[i + 2]))) {
      return std::nullopt;
    }
  }
  return URL(text);
}

}  // namespace kindora
