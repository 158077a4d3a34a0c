// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneFormatData.h"

#include <cstddef>
#include <fstream>
#include <ios>

namespace kindora {

std::optional<PhoneFormatData> readPhoneFormatFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const std::streamoff size = file.tellg();
  if (!file || size < 0) return std::nullopt;
  PhoneFormatData data(static_cast<std::size_t>(size));
  file.seekg(0);
  // A folder opens but does not read.
  if (!file.read(reinterpret_cast<char*>(data.data()), size)) return std::nullopt;
  return data;
}

}  // namespace kindora
