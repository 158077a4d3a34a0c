// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// How the program uses the heap, counted from its start. A program that links this allocates
// through it.
#pragma once

#include <cstddef>

namespace kindora::heapuse {

/// Number of allocations so far.
[[nodiscard]] std::size_t allocations();
/// Bytes that are taken now.
[[nodiscard]] std::size_t bytes();
/// The most bytes that were taken at once since the last resetPeak.
[[nodiscard]] std::size_t peakBytes();
void resetPeak();

}  // namespace kindora::heapuse
