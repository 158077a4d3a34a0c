// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/RowStack.h"

#include <algorithm>
#include <utility>

namespace kindora {
namespace {

constexpr double kUnknownHeight = 44;

}  // namespace

void RowStack::setRows(std::vector<Row> rows) {
  rows_ = std::move(rows);
  stack();
}

bool RowStack::setHeight(int row, double height) {
  Row& seen = rows_[static_cast<std::size_t>(row)];
  if (seen.height == height) return false;
  std::optional<double>& usual = usual_[seen.isHeader ? 1 : 0];
  const bool moves = !usual || heightOf(seen) != height;
  seen.height = height;
  if (!usual) usual = height;
  if (moves) stack();
  return moves;
}

RowStack::Run RowStack::rowsBetween(double top, double bottom) const {
  const auto ends = tops_.begin() + 1;  // of each row
  const auto first = std::upper_bound(ends, tops_.end(), top);
  const auto end = std::lower_bound(tops_.begin(), tops_.end() - 1, bottom);
  const Run run{static_cast<int>(first - ends), static_cast<int>(end - tops_.begin())};
  return {run.first, std::max(run.first, run.end)};
}

double RowStack::heightOf(const Row& row) const {
  return row.height.value_or(usual_[row.isHeader ? 1 : 0].value_or(kUnknownHeight));
}

void RowStack::stack() {
  tops_.assign(1, 0);
  tops_.reserve(rows_.size() + 1);
  for (const Row& row : rows_) tops_.push_back(tops_.back() + heightOf(row));
}

}  // namespace kindora
