// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace kindora {

/// Where the data file is that came with the program: beside it in an installed tree, or else where
/// it was when the program was built.
[[nodiscard]] std::string shippedDataFile();

}  // namespace kindora
