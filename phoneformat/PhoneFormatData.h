// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kindora {

/// The bytes of a phone format file.
using PhoneFormatData = std::vector<std::byte>;

/// The file's bytes; none when it cannot be read.
[[nodiscard]] std::optional<PhoneFormatData> readPhoneFormatFile(const std::string& path);

}  // namespace kindora
