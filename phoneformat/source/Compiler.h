// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

#include "phoneformat/PhoneFormatData.h"
#include "phoneformat/source/Problem.h"
#include "phoneformat/source/SourceText.h"

namespace kindora {

struct CompiledFile {
  PhoneFormatData data;
  Problems problems;
};

/// The phone format file with these plans, in the same bytes on every machine: countries by their
/// codes, blocks in the order given, each pattern once a block. A plan that is larger than its
/// 16-bit offsets reach, has no country or has a calling code that came before, is a problem.
[[nodiscard]] CompiledFile compilePhoneFormats(std::span<const SourceBlock> blocks);

}  // namespace kindora
