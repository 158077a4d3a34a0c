// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora::phonebench {

/// Makes a formatter and formats a number with it, on both sides; prints time and memory and tells
/// whether ours took at most a tenth of each. The first use of the peer in the process.
[[nodiscard]] bool compareFirstUse();

}  // namespace kindora::phonebench
