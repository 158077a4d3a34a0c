// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The text from which a phone format file is made.
//
//     code 44
//     countries gb gg im je
//     trunk 0
//     access 00
//     set 2
//       20     both  "## #### ####"
//       30-39  both  "#### ### ####"
//
// A line begins with its keyword, or else is a rule of the set above it: range of the leading
// digits, prefix for which it is meant ("any", "trunk", "intl" or "both"), pattern, and then, where
// they are not 0 or what follows from the pattern, other fields as name=value. What follows "#"
// outside a pattern is a comment.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/CallingCodeInfo.h"
#include "phoneformat/source/Problem.h"

namespace kindora {

/// The plan of one calling code and where it was read.
struct SourceBlock {
  CallingCodeInfo plan;
  std::string place;
};

struct SourceText {
  std::vector<SourceBlock> blocks;
  Problems problems;
};

/// Reads a text; `name` is what problems call it. All problems are reported, not only the first.
[[nodiscard]] SourceText parseSource(std::string_view text, const std::string& name);

/// The plans as such a text.
[[nodiscard]] std::string writeSource(std::span<const SourceBlock> blocks);

}  // namespace kindora
