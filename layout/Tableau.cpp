// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Tableau.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "layout/Tolerances.h"

namespace kindora::layout {

Tableau::Column& Tableau::column(Symbol symbol) {
  return columns_[static_cast<std::size_t>(symbol)];
}

const Tableau::Column& Tableau::column(Symbol symbol) const {
  return columns_[static_cast<std::size_t>(symbol)];
}

Symbol Tableau::make(Kind kind) {
  if (unusedSymbols_.empty()) {
    unusedSymbols_.push_back(static_cast<Symbol>(columns_.size()));
    columns_.emplace_back();
  }
  const Symbol symbol = unusedSymbols_.back();
  unusedSymbols_.pop_back();
  column(symbol).kind = kind;
  return symbol;
}

void Tableau::release(Symbol symbol) {
  // Rounding may have left cells; the column tells where.
  for (const std::int32_t index : rowsWith(symbol)) row(index).expression.take(symbol);
  Column& released = column(symbol);
  released.kind = Kind::unused;
  released.basicRow = -1;
  released.strength.reset();
  released.rows.clear();
  released.reducedCost.clear();
  unusedSymbols_.push_back(symbol);
}

Symbol Tableau::makeFree() { return make(Kind::free); }

void Tableau::releaseFree(Symbol symbol) {
  if (column(symbol).basicRow >= 0) dropRow(column(symbol).basicRow);
  release(symbol);
}

double Tableau::value(Symbol symbol) const {
  const std::int32_t index = column(symbol).basicRow;
  return index >= 0 ? row(index).expression.constant : 0;
}

void Tableau::clearChanged() {
  for (const Symbol symbol : changed_) column(symbol).isChanged = false;
  changed_.clear();
}

// Puts the column in order: each row once, and only those that have a cell in it.
const std::vector<std::int32_t>& Tableau::rowsWith(Symbol symbol) {
  Column& ordered = column(symbol);
  ++rowMark_;
  std::erase_if(ordered.rows, [this, symbol](std::int32_t index) {
    std::uint32_t& mark = rowMarks_[static_cast<std::size_t>(index)];
    if (mark == rowMark_ || row(index).expression.coefficient(symbol) == 0) return true;
    mark = rowMark_;
    return false;
  });
  ordered.rowLimit = std::max<std::size_t>(16, 2 * ordered.rows.size());
  return ordered.rows;
}

void Tableau::noteCell(Symbol symbol, std::int32_t index) {
  Column& noted = column(symbol);
  noted.rows.push_back(index);
  // Cells come and go; what is stale must not pile up.
  if (noted.rows.size() > noted.rowLimit) static_cast<void>(rowsWith(symbol));
}

bool Tableau::isInfeasible(const Row& row) const {
  if (row.basic == kNoSymbol) return false;
  switch (column(row.basic).kind) {
    case Kind::slack:
      return row.expression.constant < -kTolerance;
    case Kind::fixed:
      return std::abs(row.expression.constant) > kTolerance;
    default:
      return false;
  }
}

void Tableau::noteConstant(std::int32_t index) {
  const Row& noted = row(index);
  if (column(noted.basic).kind == Kind::free) {
    noteChange(noted.basic);
  } else if (isInfeasible(noted)) {
    infeasible_.push_back(index);
  }
}

void Tableau::noteChange(Symbol symbol) {
  Column& noted = column(symbol);
  if (noted.isChanged) return;
  noted.isChanged = true;
  changed_.push_back(symbol);
}

// The sum with each basic variable replaced by its row.
LinearRow Tableau::inNonbasics(std::span<const Cell> cells, double constant) const {
  LinearRow result;
  result.constant = constant;
  std::vector<Symbol> added;
  for (const Cell& cell : cells) {
    const std::int32_t index = column(cell.symbol).basicRow;
    if (index >= 0) {
      result.add(row(index).expression, cell.coefficient, added);
    } else {
      result.add(cell.symbol, cell.coefficient);
    }
  }
  return result;
}

void Tableau::noteReducedCost(Symbol symbol) {
  Column& noted = column(symbol);
  if (noted.isCandidate || noted.kind != Kind::slack || !noted.reducedCost.isNegative()) return;
  noted.isCandidate = true;
  candidates_.push_back(symbol);
}

void Tableau::addReducedCost(Symbol symbol, const SymbolicWeight& cost, double factor) {
  column(symbol).reducedCost.add(cost, factor);
  noteReducedCost(symbol);
}

// Adds what the variable weighs as a violation, the factor times, to the objective.
void Tableau::addToObjective(Symbol symbol, double factor) {
  const Column& violation = column(symbol);
  if (!violation.strength) return;
  const double strength = *violation.strength;
  if (violation.basicRow < 0) {
    column(symbol).reducedCost.add(strength, factor);
    noteReducedCost(symbol);
    return;
  }
  for (const Cell& cell : row(violation.basicRow).expression.cells()) {
    column(cell.symbol).reducedCost.add(strength, factor * cell.coefficient);
    noteReducedCost(cell.symbol);
  }
}

std::int32_t Tableau::insertRow(Symbol basic, LinearRow expression) {
  if (unusedRows_.empty()) {
    unusedRows_.push_back(static_cast<std::int32_t>(rows_.size()));
    rows_.emplace_back();
    rowMarks_.push_back(0);
  }
  const std::int32_t index = unusedRows_.back();
  unusedRows_.pop_back();
  row(index) = {basic, std::move(expression)};
  column(basic).basicRow = index;
  // The column of a cell may be put in order here, so the row must be in place already.
  for (const Cell& cell : row(index).expression.cells()) noteCell(cell.symbol, index);
  noteConstant(index);
  return index;
}

void Tableau::dropRow(std::int32_t index) {
  column(row(index).basic).basicRow = -1;
  row(index) = {};
  unusedRows_.push_back(index);
}

void Tableau::addCell(std::int32_t index, Symbol symbol, double coefficient) {
  row(index).expression.add(symbol, coefficient);
  noteCell(symbol, index);
}

// Puts the basic variable's row in its place in all other rows and in the objective.
void Tableau::eliminate(Symbol basic, std::int32_t index) {
  const LinearRow& expression = row(index).expression;
  for (const std::int32_t other : rowsWith(basic)) {
    if (other == index) continue;
    LinearRow& target = row(other).expression;
    const double factor = target.take(basic);
    added_.clear();
    target.add(expression, factor, added_);
    for (const Symbol fresh : added_) noteCell(fresh, other);
    noteConstant(other);
  }
  Column& eliminated = column(basic);
  eliminated.rows.clear();
  if (eliminated.reducedCost.isZero()) return;
  for (const Cell& cell : expression.cells()) {
    addReducedCost(cell.symbol, eliminated.reducedCost, cell.coefficient);
  }
  eliminated.reducedCost.clear();
}

void Tableau::pivot(std::int32_t index, Symbol entering) {
  Row& turned = row(index);
  const Symbol leaving = turned.basic;
  const double coefficient = turned.expression.take(entering);
  turned.expression.scale(-1 / coefficient);
  turned.basic = entering;
  column(leaving).basicRow = -1;
  if (column(leaving).kind == Kind::free) noteChange(leaving);
  column(entering).basicRow = index;
  addCell(index, leaving, 1 / coefficient);
  noteConstant(index);
  eliminate(entering, index);
}

// A nonbasic variable that lowers the objective when it grows.
Symbol Tableau::primalEntering() {
  std::erase_if(candidates_, [this](Symbol symbol) {
    Column& candidate = column(symbol);
    candidate.isCandidate = candidate.kind == Kind::slack && candidate.basicRow < 0 &&
                            candidate.reducedCost.isNegative();
    return !candidate.isCandidate;
  });
  if (candidates_.empty()) return kNoSymbol;
  return *std::min_element(candidates_.begin(), candidates_.end());
}

// The ratio test: the row whose basic variable is the first to reach its bound when the entering
// one grows.
std::int32_t Tableau::primalLeavingRow(Symbol entering) {
  std::int32_t best = -1;
  double least = std::numeric_limits<double>::infinity();
  for (const std::int32_t index : rowsWith(entering)) {
    const Row& candidate = row(index);
    const Kind kind = column(candidate.basic).kind;
    const double coefficient = candidate.expression.coefficient(entering);
    if (kind == Kind::free || (kind == Kind::slack && coefficient > 0)) continue;
    const double ratio =
        kind == Kind::fixed ? 0 : std::max(0.0, candidate.expression.constant) / -coefficient;
    if (ratio < least || (ratio == least && candidate.basic < row(best).basic)) {
      least = ratio;
      best = index;
    }
  }
  return best;
}

// From a feasible tableau to an optimal one.
void Tableau::primalSimplex() {
  for (Symbol entering = primalEntering(); entering != kNoSymbol; entering = primalEntering()) {
    const std::int32_t index = primalLeavingRow(entering);
    if (index >= 0) {
      pivot(index, entering);
    } else {
      // The objective is bounded below, so this reduced cost can only be what rounding left.
      column(entering).reducedCost.clear();
    }
  }
}

// A row whose basic variable is out of its bounds.
std::int32_t Tableau::dualLeavingRow() {
  std::erase_if(infeasible_, [this](std::int32_t index) { return !isInfeasible(row(index)); });
  if (infeasible_.empty()) return -1;
  return *std::min_element(
      infeasible_.begin(), infeasible_.end(),
      [this](std::int32_t left, std::int32_t right) { return row(left).basic < row(right).basic; });
}

// The dual ratio test: the nonbasic variable that brings the row's basic one to its bound at the
// least cost.
Symbol Tableau::dualEntering(const Row& row) const {
  const double direction = row.expression.constant < 0 ? 1 : -1;
  Symbol best = kNoSymbol;
  double bestFactor = 0;
  for (const Cell& cell : row.expression.cells()) {
    const Column& candidate = column(cell.symbol);
    const double pull = direction * cell.coefficient;
    if (candidate.kind != Kind::slack || pull <= kTiny) continue;
    const double factor = 1 / pull;
    if (best != kNoSymbol && SymbolicWeight::compare(candidate.reducedCost, factor,
                                                     column(best).reducedCost, bestFactor) >= 0) {
      continue;
    }
    best = cell.symbol;
    bestFactor = factor;
  }
  return best;
}

// From an optimal tableau that may be infeasible to a feasible one. False and all pivots undone
// when the required constraints contradict each other.
bool Tableau::dualSimplex() {
  pivots_.clear();
  for (std::int32_t index = dualLeavingRow(); index >= 0; index = dualLeavingRow()) {
    const Symbol leaving = row(index).basic;
    const Symbol entering = dualEntering(row(index));
    if (entering == kNoSymbol) {
      for (auto done = pivots_.rbegin(); done != pivots_.rend(); ++done) {
        pivot(column(done->first).basicRow, done->second);
      }
      infeasible_.clear();
      return false;
    }
    pivot(index, entering);
    pivots_.emplace_back(entering, leaving);
  }
  return true;
}

// A free variable to solve a new row for: the one that stands in the fewest rows.
Symbol Tableau::basicFor(const LinearRow& expression) const {
  Symbol best = kNoSymbol;
  for (const Cell& cell : expression.cells()) {
    const Column& candidate = column(cell.symbol);
    if (candidate.kind != Kind::free) continue;
    if (best == kNoSymbol || candidate.rows.size() < column(best).rows.size()) {
      best = cell.symbol;
    }
  }
  return best;
}

std::optional<Tableau::Slacks> Tableau::add(std::span<const Cell> cells, double constant,
                                            bool equality, std::optional<double> strength) {
  LinearRow expression = inNonbasics(cells, constant);
  Slacks slacks{make(equality && !strength ? Kind::fixed : Kind::slack)};
  if (strength) {
    slacks.shortfall = make(Kind::slack);
    column(slacks.shortfall).strength = strength;
    if (equality) column(slacks.surplus).strength = strength;
  }
  const Symbol basic = basicFor(expression);
  if (basic != kNoSymbol) {
    const double coefficient = expression.take(basic);
    expression.scale(-1 / coefficient);
    expression.add(slacks.surplus, 1 / coefficient);
    if (strength) expression.add(slacks.shortfall, -1 / coefficient);
    eliminate(basic, insertRow(basic, std::move(expression)));
  } else if (strength && expression.constant < 0) {
    expression.scale(-1);
    expression.add(slacks.surplus, 1);
    insertRow(slacks.shortfall, std::move(expression));
  } else {
    if (strength) expression.add(slacks.shortfall, 1);
    const std::int32_t index = insertRow(slacks.surplus, std::move(expression));
    if (!dualSimplex()) {
      dropRow(index);
      release(slacks.surplus);
      return std::nullopt;
    }
  }
  addToObjective(slacks.surplus, 1);
  if (strength) addToObjective(slacks.shortfall, 1);
  primalSimplex();
  return slacks;
}

// The row in which to make a nonbasic surplus basic, so that nothing else becomes infeasible when
// its constraint goes.
std::int32_t Tableau::removalLeavingRow(Symbol surplus) {
  enum Rank { fixed, falling, rising, free, none };
  std::int32_t best = -1;
  Rank bestRank = none;
  double least = 0;
  for (const std::int32_t index : rowsWith(surplus)) {
    const Row& candidate = row(index);
    const Kind kind = column(candidate.basic).kind;
    const double coefficient = candidate.expression.coefficient(surplus);
    Rank rank = coefficient < 0 ? falling : rising;
    double ratio = std::max(0.0, candidate.expression.constant) / std::abs(coefficient);
    if (kind != Kind::slack) {
      rank = kind == Kind::fixed ? fixed : free;
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

void Tableau::remove(Slacks slacks) {
  addToObjective(slacks.surplus, -1);
  if (slacks.shortfall != kNoSymbol) addToObjective(slacks.shortfall, -1);
  if (column(slacks.surplus).basicRow < 0) {
    const std::int32_t index = removalLeavingRow(slacks.surplus);
    if (index >= 0) pivot(index, slacks.surplus);
  }
  for (const Symbol symbol : {slacks.surplus, slacks.shortfall}) {
    if (symbol == kNoSymbol) continue;
    if (column(symbol).basicRow >= 0) dropRow(column(symbol).basicRow);
    release(symbol);
  }
  primalSimplex();
}

void Tableau::moveConstants(std::span<const Shift> shifts, double factor) {
  for (const Shift& shift : shifts) {
    const double amount = shift.amount * factor;
    const std::int32_t own = column(shift.surplus).basicRow;
    if (own >= 0) {
      row(own).expression.constant += amount;
      noteConstant(own);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.surplus)) {
      LinearRow& moved = row(index).expression;
      moved.constant -= amount * moved.coefficient(shift.surplus);
      noteConstant(index);
    }
  }
}

bool Tableau::shift(std::span<const Shift> shifts) {
  moveConstants(shifts, 1);
  const bool feasible = dualSimplex();
  if (!feasible) {
    moveConstants(shifts, -1);
    infeasible_.clear();
  }
  primalSimplex();
  return feasible;
}

Tableau::Slacks Tableau::adopt(Symbol basic, std::span<const Cell> cells, double constant,
                               double pull, std::span<const Shift> influence) {
  const Symbol surplus = make(Kind::fixed);
  for (const Shift& shift : influence) {
    const Column& moved = column(shift.surplus);
    if (moved.basicRow >= 0) {
      addCell(moved.basicRow, surplus, shift.amount);
      if (moved.strength) column(surplus).reducedCost.add(*moved.strength, shift.amount);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.surplus)) {
      addCell(index, surplus, -shift.amount * row(index).expression.coefficient(shift.surplus));
    }
    // What the moved surplus itself weighs does not move with the rows.
    column(surplus).reducedCost.add(moved.reducedCost, -shift.amount);
    if (moved.strength) column(surplus).reducedCost.add(*moved.strength, shift.amount);
  }
  LinearRow expression = inNonbasics(cells, constant);
  expression.add(surplus, pull);
  insertRow(basic, std::move(expression));
  return {surplus};
}

}  // namespace kindora::layout
