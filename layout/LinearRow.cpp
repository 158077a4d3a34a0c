// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/LinearRow.h"

#include <algorithm>
#include <cmath>

#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

constexpr auto kBefore = [](const Cell& cell, Symbol symbol) { return cell.symbol < symbol; };

}  // namespace

double LinearRow::coefficient(Symbol symbol) const {
  const auto place = std::lower_bound(cells_.begin(), cells_.end(), symbol, kBefore);
  return place != cells_.end() && place->symbol == symbol ? place->coefficient : 0;
}

void LinearRow::scale(double factor) {
  constant *= factor;
  for (Cell& cell : cells_) cell.coefficient *= factor;
}

void LinearRow::add(Symbol symbol, double coefficient) {
  const auto place = std::lower_bound(cells_.begin(), cells_.end(), symbol, kBefore);
  if (place == cells_.end() || place->symbol != symbol) {
    if (std::abs(coefficient) > kTiny) cells_.insert(place, {symbol, coefficient});
    return;
  }
  place->coefficient += coefficient;
  if (std::abs(place->coefficient) <= kTiny) cells_.erase(place);
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
        kept.coefficient += cell.coefficient * factor;
        --theirs;
        if (std::abs(kept.coefficient) <= kTiny) continue;
      }
      cells_[--end] = kept;
      continue;
    }
    --theirs;
    if (std::abs(cell.coefficient * factor) <= kTiny) continue;
    cells_[--end] = {cell.symbol, cell.coefficient * factor};
    added.push_back(cell.symbol);
  }
  // What lies below `own` has not moved; close the gap that merged cells left.
  cells_.erase(cells_.begin() + static_cast<std::ptrdiff_t>(own),
               cells_.begin() + static_cast<std::ptrdiff_t>(end));
}

}  // namespace kindora::layout
