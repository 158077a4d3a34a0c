// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kindora::layout {

/// Names a variable of a tableau; small numbers from 0 on, used again once released.
using Symbol = std::int32_t;
inline constexpr Symbol kNoSymbol = -1;

/// A variable and its coefficient.
struct Cell {
  Symbol symbol = kNoSymbol;
  double coefficient = 0;
};

/// constant + the sum of the cells; each symbol at most once, in ascending order. Coefficients that
/// an addition brings within 1e-9 of 0 are taken for 0.
class LinearRow final {
 public:
  double constant = 0;

  [[nodiscard]] std::span<const Cell> cells() const { return cells_; }
  /// 0 for a symbol that has no cell.
  [[nodiscard]] double coefficient(Symbol symbol) const;

  void scale(double factor);
  void add(Symbol symbol, double coefficient);
  /// Takes the symbol's cell out and answers its coefficient.
  double take(Symbol symbol);
  /// Adds the other row, the factor times; `added` hears of every symbol that had no cell before.
  void add(const LinearRow& other, double factor, std::vector<Symbol>& added);

 private:
  std::vector<Cell> cells_;
};

}  // namespace kindora::layout
