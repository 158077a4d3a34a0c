// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Where in [0, 1] a function that never falls reaches the value; 0 or 1 when the value lies
/// outside its range.
template <typename Function>
[[nodiscard]] double whereReaches(const Function& function, double value) {
  double low = 0;
  double high = 1;
  // As often as a double has binary digits.
  for (int i = 0; i < 53; ++i) {
    const double middle = (low + high) / 2;
    (function(middle) < value ? low : high) = middle;
  }
  return function(high) <= value ? high : low;
}

}  // namespace kindora
