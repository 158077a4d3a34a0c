// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace kindora {

/// The texts of a container in its order as "(a, b)"; "()" when it is empty.
template <typename Texts>
[[nodiscard]] std::string textList(const Texts& texts) {
  std::string result = "(";
  for (const std::string& text : texts) {
    if (result.size() > 1) result += ", ";
    result += text;
  }
  return result += ")";
}

}  // namespace kindora
