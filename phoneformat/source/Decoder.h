// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "phoneformat/PhoneFormatData.h"
#include "phoneformat/source/SourceText.h"

namespace kindora {

/// Reads a whole phone format file, patterns as they stand there, and reports everything that is
/// not as it should be: what lies outside the file, texts that do not end, optional parts that are
/// not closed, empty ranges, patterns without room for their digits, patterns out of the pool, one
/// calling code with several blocks, codes of the wrong form. `name` is what problems call the
/// file.
[[nodiscard]] SourceText decodePhoneFormats(const PhoneFormatData& data, const std::string& name);

}  // namespace kindora
