// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Tableau.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kindora::layout {
namespace {

constexpr double kTolerance = 1e-8;  // by which a row may miss what it is restricted to
constexpr double kTiny = 1e-9;       // what counts as no coefficient

}  // namespace

Tableau::SymbolRecord& Tableau::record(Symbol symbol) {
  return symbols_[static_cast<std::size_t>(symbol)];
}

const Tableau::SymbolRecord& Tableau::record(Symbol symbol) const {
  return symbols_[static_cast<std::size_t>(symbol)];
}

Symbol Tableau::make(Kind kind) {
  if (freeSymbols_.empty()) {
    freeSymbols_.push_back(static_cast<Symbol>(symbols_.size()));
    symbols_.emplace_back();
  }
  const Symbol symbol = freeSymbols_.back();
  freeSymbols_.pop_back();
  record(symbol).kind = kind;
  return symbol;
}

void Tableau::release(Symbol symbol) {
  // Rounding may have left cells; the column tells where.
  for (const std::int32_t index : rowsWith(symbol)) row(index).expression.take(symbol);
  SymbolRecord& released = record(symbol);
  released.kind = Kind::unused;
  released.row = -1;
  released.strength.reset();
  released.column.clear();
  released.cost.clear();
  freeSymbols_.push_back(symbol);
}

Symbol Tableau::makeExternal() { return make(Kind::external); }

void Tableau::releaseExternal(Symbol symbol) {
  if (record(symbol).row >= 0) dropRow(record(symbol).row);
  release(symbol);
}

double Tableau::value(Symbol symbol) const {
  const std::int32_t index = record(symbol).row;
  return index >= 0 ? row(index).expression.constant : 0;
}

void Tableau::clearChanged() {
  for (const Symbol symbol : changed_) record(symbol).isChanged = false;
  changed_.clear();
}

// Puts the column in order: each row once, and only those that hold the symbol.
const std::vector<std::int32_t>& Tableau::rowsWith(Symbol symbol) {
  std::vector<std::int32_t>& column = record(symbol).column;
  ++rowMark_;
  std::erase_if(column, [this, symbol](std::int32_t index) {
    std::uint32_t& mark = rowMarks_[static_cast<std::size_t>(index)];
    if (mark == rowMark_ || row(index).expression.coefficient(symbol) == 0) return true;
    mark = rowMark_;
    return false;
  });
  record(symbol).columnLimit = std::max<std::size_t>(16, 2 * column.size());
  return column;
}

void Tableau::noteCell(Symbol symbol, std::int32_t index) {
  SymbolRecord& noted = record(symbol);
  noted.column.push_back(index);
  // Cells come and go; what is stale must not pile up.
  if (noted.column.size() > noted.columnLimit) static_cast<void>(rowsWith(symbol));
}

bool Tableau::isInfeasible(const Row& row) const {
  if (row.basic == kNoSymbol) return false;
  switch (record(row.basic).kind) {
    case Kind::slack:
      return row.expression.constant < -kTolerance;
    case Kind::dummy:
      return std::abs(row.expression.constant) > kTolerance;
    default:
      return false;
  }
}

void Tableau::noteConstant(std::int32_t index) {
  const Row& noted = row(index);
  if (record(noted.basic).kind == Kind::external) {
    noteChange(noted.basic);
  } else if (isInfeasible(noted)) {
    infeasible_.push_back(index);
  }
}

void Tableau::noteChange(Symbol external) {
  SymbolRecord& noted = record(external);
  if (noted.isChanged) return;
  noted.isChanged = true;
  changed_.push_back(external);
}

LinearRow Tableau::substituted(std::span<const Cell> cells, double constant) const {
  LinearRow result;
  result.constant = constant;
  std::vector<Symbol> added;
  for (const Cell& cell : cells) {
    const std::int32_t index = record(cell.symbol).row;
    if (index >= 0) {
      result.add(row(index).expression, cell.coefficient, added);
    } else {
      result.add(cell.symbol, cell.coefficient);
    }
  }
  return result;
}

void Tableau::noteCost(Symbol symbol) {
  SymbolRecord& noted = record(symbol);
  if (noted.isCandidate || noted.kind != Kind::slack || !noted.cost.isNegative()) return;
  noted.isCandidate = true;
  candidates_.push_back(symbol);
}

void Tableau::addCost(Symbol symbol, const SymbolicWeight& cost, double factor) {
  record(symbol).cost.add(cost, factor);
  noteCost(symbol);
}

// Adds what the symbol weighs as a violation, the factor times, to the costs.
void Tableau::charge(Symbol symbol, double factor) {
  const SymbolRecord& charged = record(symbol);
  if (!charged.strength) return;
  const double strength = *charged.strength;
  if (charged.row < 0) {
    record(symbol).cost.add(strength, factor);
    noteCost(symbol);
    return;
  }
  for (const Cell& cell : row(charged.row).expression.cells()) {
    record(cell.symbol).cost.add(strength, factor * cell.coefficient);
    noteCost(cell.symbol);
  }
}

std::int32_t Tableau::insertRow(Symbol basic, LinearRow expression) {
  if (freeRows_.empty()) {
    freeRows_.push_back(static_cast<std::int32_t>(rows_.size()));
    rows_.emplace_back();
    rowMarks_.push_back(0);
  }
  const std::int32_t index = freeRows_.back();
  freeRows_.pop_back();
  row(index) = {basic, std::move(expression)};
  record(basic).row = index;
  // The column of a cell may be put in order here, so the row must be in place already.
  for (const Cell& cell : row(index).expression.cells()) noteCell(cell.symbol, index);
  noteConstant(index);
  return index;
}

void Tableau::dropRow(std::int32_t index) {
  record(row(index).basic).row = -1;
  row(index) = {};
  freeRows_.push_back(index);
}

void Tableau::addCell(std::int32_t index, Symbol symbol, double coefficient) {
  row(index).expression.add(symbol, coefficient);
  noteCell(symbol, index);
}

// Puts the symbol's own row in its place in all others and in the costs.
void Tableau::substituteEverywhere(Symbol symbol, std::int32_t index) {
  const LinearRow& expression = row(index).expression;
  for (const std::int32_t other : rowsWith(symbol)) {
    if (other == index) continue;
    LinearRow& target = row(other).expression;
    const double factor = target.take(symbol);
    added_.clear();
    target.add(expression, factor, added_);
    for (const Symbol fresh : added_) noteCell(fresh, other);
    noteConstant(other);
  }
  SymbolRecord& gone = record(symbol);
  gone.column.clear();
  if (gone.cost.isZero()) return;
  for (const Cell& cell : expression.cells()) addCost(cell.symbol, gone.cost, cell.coefficient);
  gone.cost.clear();
}

void Tableau::pivot(std::int32_t index, Symbol entering) {
  Row& turned = row(index);
  const Symbol leaving = turned.basic;
  const double coefficient = turned.expression.take(entering);
  turned.expression.scale(-1 / coefficient);
  turned.basic = entering;
  record(leaving).row = -1;
  if (record(leaving).kind == Kind::external) noteChange(leaving);
  record(entering).row = index;
  addCell(index, leaving, 1 / coefficient);
  noteConstant(index);
  substituteEverywhere(entering, index);
}

Symbol Tableau::takeCandidate() {
  std::erase_if(candidates_, [this](Symbol symbol) {
    SymbolRecord& candidate = record(symbol);
    candidate.isCandidate =
        candidate.kind == Kind::slack && candidate.row < 0 && candidate.cost.isNegative();
    return !candidate.isCandidate;
  });
  if (candidates_.empty()) return kNoSymbol;
  return *std::min_element(candidates_.begin(), candidates_.end());
}

// The row whose basic symbol is the first to reach its bound when the entering one grows.
std::int32_t Tableau::rowThatLimits(Symbol entering) {
  std::int32_t best = -1;
  double least = std::numeric_limits<double>::infinity();
  for (const std::int32_t index : rowsWith(entering)) {
    const Row& candidate = row(index);
    const Kind kind = record(candidate.basic).kind;
    const double coefficient = candidate.expression.coefficient(entering);
    if (kind == Kind::external || (kind == Kind::slack && coefficient > 0)) continue;
    const double ratio =
        kind == Kind::dummy ? 0 : std::max(0.0, candidate.expression.constant) / -coefficient;
    if (ratio < least || (ratio == least && candidate.basic < row(best).basic)) {
      least = ratio;
      best = index;
    }
  }
  return best;
}

void Tableau::optimize() {
  for (Symbol entering = takeCandidate(); entering != kNoSymbol; entering = takeCandidate()) {
    const std::int32_t index = rowThatLimits(entering);
    if (index >= 0) {
      pivot(index, entering);
    } else {
      // Weights are bounded below, so this cost can only be what rounding left.
      record(entering).cost.clear();
    }
  }
}

std::int32_t Tableau::takeInfeasible() {
  std::erase_if(infeasible_, [this](std::int32_t index) { return !isInfeasible(row(index)); });
  if (infeasible_.empty()) return -1;
  return *std::min_element(
      infeasible_.begin(), infeasible_.end(),
      [this](std::int32_t left, std::int32_t right) { return row(left).basic < row(right).basic; });
}

// The symbol that brings the row to its bound at the least cost.
Symbol Tableau::symbolThatMends(const Row& row) const {
  const double direction = row.expression.constant < 0 ? 1 : -1;
  Symbol best = kNoSymbol;
  double bestFactor = 0;
  for (const Cell& cell : row.expression.cells()) {
    const SymbolRecord& candidate = record(cell.symbol);
    const double pull = direction * cell.coefficient;
    if (candidate.kind != Kind::slack || pull <= kTiny) continue;
    const double factor = 1 / pull;
    if (best != kNoSymbol &&
        SymbolicWeight::compare(candidate.cost, factor, record(best).cost, bestFactor) >= 0) {
      continue;
    }
    best = cell.symbol;
    bestFactor = factor;
  }
  return best;
}

// False and all exchanges undone when the required constraints contradict each other.
bool Tableau::restoreFeasibility() {
  pivots_.clear();
  for (std::int32_t index = takeInfeasible(); index >= 0; index = takeInfeasible()) {
    const Symbol leaving = row(index).basic;
    const Symbol entering = symbolThatMends(row(index));
    if (entering == kNoSymbol) {
      for (auto done = pivots_.rbegin(); done != pivots_.rend(); ++done) {
        pivot(record(done->first).row, done->second);
      }
      infeasible_.clear();
      return false;
    }
    pivot(index, entering);
    pivots_.emplace_back(entering, leaving);
  }
  return true;
}

// An external symbol to solve a new row for: the one that stands in the fewest rows.
Symbol Tableau::subjectOf(const LinearRow& expression) const {
  Symbol best = kNoSymbol;
  for (const Cell& cell : expression.cells()) {
    const SymbolRecord& candidate = record(cell.symbol);
    if (candidate.kind != Kind::external) continue;
    if (best == kNoSymbol || candidate.column.size() < record(best).column.size()) {
      best = cell.symbol;
    }
  }
  return best;
}

std::optional<Tableau::Markers> Tableau::add(std::span<const Cell> cells, double constant,
                                             bool equality, std::optional<double> strength) {
  LinearRow expression = substituted(cells, constant);
  Markers markers{make(equality && !strength ? Kind::dummy : Kind::slack)};
  if (strength) {
    markers.other = make(Kind::slack);
    record(markers.other).strength = strength;
    if (equality) record(markers.marker).strength = strength;
  }
  const Symbol subject = subjectOf(expression);
  if (subject != kNoSymbol) {
    const double coefficient = expression.take(subject);
    expression.scale(-1 / coefficient);
    expression.add(markers.marker, 1 / coefficient);
    if (strength) expression.add(markers.other, -1 / coefficient);
    substituteEverywhere(subject, insertRow(subject, std::move(expression)));
  } else if (strength && expression.constant < 0) {
    expression.scale(-1);
    expression.add(markers.marker, 1);
    insertRow(markers.other, std::move(expression));
  } else {
    if (strength) expression.add(markers.other, 1);
    const std::int32_t index = insertRow(markers.marker, std::move(expression));
    if (!restoreFeasibility()) {
      dropRow(index);
      release(markers.marker);
      return std::nullopt;
    }
  }
  charge(markers.marker, 1);
  if (strength) charge(markers.other, 1);
  optimize();
  return markers;
}

// The row to exchange with the marker so that nothing else becomes infeasible by its going.
std::int32_t Tableau::rowToFree(Symbol marker) {
  enum Rank { dummy, falling, rising, external, none };
  std::int32_t best = -1;
  Rank bestRank = none;
  double least = 0;
  for (const std::int32_t index : rowsWith(marker)) {
    const Row& candidate = row(index);
    const Kind kind = record(candidate.basic).kind;
    const double coefficient = candidate.expression.coefficient(marker);
    Rank rank = coefficient < 0 ? falling : rising;
    double ratio = std::max(0.0, candidate.expression.constant) / std::abs(coefficient);
    if (kind != Kind::slack) {
      rank = kind == Kind::dummy ? dummy : external;
      ratio = 0;
    }
    if (rank < bestRank || (rank == bestRank && ratio < least)) {
      best = index;
      bestRank = rank;
      least = ratio;
    }
  }
  return best;
}

void Tableau::remove(Markers markers) {
  charge(markers.marker, -1);
  if (markers.other != kNoSymbol) charge(markers.other, -1);
  if (record(markers.marker).row < 0) {
    const std::int32_t index = rowToFree(markers.marker);
    if (index >= 0) pivot(index, markers.marker);
  }
  for (const Symbol symbol : {markers.marker, markers.other}) {
    if (symbol == kNoSymbol) continue;
    if (record(symbol).row >= 0) dropRow(record(symbol).row);
    release(symbol);
  }
  optimize();
}

void Tableau::moveConstants(std::span<const Shift> shifts, double factor) {
  for (const Shift& shift : shifts) {
    const double amount = shift.amount * factor;
    const std::int32_t own = record(shift.marker).row;
    if (own >= 0) {
      row(own).expression.constant += amount;
      noteConstant(own);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.marker)) {
      LinearRow& moved = row(index).expression;
      moved.constant -= amount * moved.coefficient(shift.marker);
      noteConstant(index);
    }
  }
}

bool Tableau::shift(std::span<const Shift> shifts) {
  moveConstants(shifts, 1);
  const bool feasible = restoreFeasibility();
  if (!feasible) {
    moveConstants(shifts, -1);
    infeasible_.clear();
  }
  optimize();
  return feasible;
}

Tableau::Markers Tableau::adopt(Symbol external, std::span<const Cell> cells, double constant,
                                double pull, std::span<const Shift> influence) {
  const Symbol marker = make(Kind::dummy);
  for (const Shift& shift : influence) {
    const SymbolRecord& moved = record(shift.marker);
    if (moved.row >= 0) {
      addCell(moved.row, marker, shift.amount);
      if (moved.strength) record(marker).cost.add(*moved.strength, shift.amount);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.marker)) {
      addCell(index, marker, -shift.amount * row(index).expression.coefficient(shift.marker));
    }
    // What the marker itself weighs does not move with the rows.
    record(marker).cost.add(moved.cost, -shift.amount);
    if (moved.strength) record(marker).cost.add(*moved.strength, shift.amount);
  }
  LinearRow expression = substituted(cells, constant);
  expression.add(marker, pull);
  insertRow(external, std::move(expression));
  return {marker};
}

}  // namespace kindora::layout
