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

/// constant + the sum of the cells; each symbol at most once, in ascending order. A coefficient
/// of which an addition leaves nothing but rounding is taken for 0.
class LinearRow final {
 public:
  double constant = 0;

  [[nodiscard]] std::span<const Cell> cells() const { return cells_; }
  /// 0 for a symbol that has no cell.
  [[nodiscard]] double coefficient(Symbol symbol) const;
  /// The largest coefficient, without its sign.
  [[nodiscard]] double largest() const;

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
