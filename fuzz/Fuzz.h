// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// What libFuzzer calls with input after input; 0 when it is done.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kindora {

/// The input as text.
[[nodiscard]] inline std::string_view fuzzText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process, which counts as a finding, unless what must hold does.
inline void require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

}  // namespace kindora
