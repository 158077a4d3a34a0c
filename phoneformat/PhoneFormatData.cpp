// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneFormatData.h"

#include <cstddef>
#include <fstream>
#include <iterator>
#include <span>

namespace kindora {

std::optional<PhoneFormatData> readPhoneFormatFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  // A folder opens but does not read.
  if (file.bad()) return std::nullopt;
  const auto bytes = std::as_bytes(std::span(text));
  return PhoneFormatData(bytes.begin(), bytes.end());
}

}  // namespace kindora
