// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/LinearRow.h"

#include <algorithm>
#include <cmath>

#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

constexpr auto kBefore = [](const Cell& cell, Symbol symbol) { return cell.symbol < symbol; };

// Whether a sum is what rounding left of the addend and its opposite.
bool isCancelled(double sum, double addend) {
  return std::abs(sum) <= std::max(kVanishing, kCancelled * std::abs(addend));
}

}  // namespace

double LinearRow::coefficient(Symbol symbol) const {
  const auto place = std::lower_bound(cells_.begin(), cells_.end(), symbol, kBefore);
  return place != cells_.end() && place->symbol == symbol ? place->coefficient : 0;
}

double LinearRow::largest() const {
  double largest = 0;
  for (const Cell& cell : cells_) largest = std::max(largest, std::abs(cell.coefficient));
  return largest;
}

void LinearRow::scale(double factor) {
  constant *= factor;
  for (Cell& cell : cells_) cell.coefficient *= factor;
}

void LinearRow::add(Symbol symbol, double coefficient) {
  const auto place = std::lower_bound(cells_.begin(), cells_.end(), symbol, kBefore);
  if (place == cells_.end() || place->symbol != symbol) {
    if (std::abs(coefficient) > kVanishing) cells_.insert(place, {symbol, coefficient});
    return;
  }
  place->coefficient += coefficient;
  if (isCancelled(place->coefficient, coefficient)) cells_.erase(place);
}

double LinearRow::take(Symbol symbol) {
  const auto place = std::lower_bound(cells_.begin(), cells_.end(), symbol, kBefore);
  if (place == cells_.end() || place->symbol != symbol) return 0;
  const double coefficient = place->coefficient;
  cells_.erase(place);
  return coefficient;
}

void LinearRow::add(const LinearRow& other, double factor, std::vector<Symbol>& added) {
  constant += other.constant * factor;
  // From the back into the room made for both, so that nothing is allocated but that room.
  std::size_t own = cells_.size();
  std::size_t theirs = other.cells_.size();
  std::size_t end = own + theirs;
  cells_.resize(end);
  while (theirs > 0) {
    const Cell& cell = other.cells_[theirs - 1];
    if (own > 0 && cells_[own - 1].symbol >= cell.symbol) {
      Cell kept = cells_[--own];
      if (kept.symbol == cell.symbol) {
        const double addend = cell.coefficient * factor;
        kept.coefficient += addend;
        --theirs;
        if (isCancelled(kept.coefficient, addend)) continue;
      }
      cells_[--end] = kept;
      continue;
    }
    --theirs;
    if (std::abs(cell.coefficient * factor) <= kVanishing) continue;
    cells_[--end] = {cell.symbol, cell.coefficient * factor};
    added.push_back(cell.symbol);
  }
  // What lies below `own` has not moved; close the gap that merged cells left.
  cells_.erase(cells_.begin() + static_cast<std::ptrdiff_t>(own),
               cells_.begin() + static_cast<std::ptrdiff_t>(end));
}

}  // namespace kindora::layout
