// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Tableau.h"

#include <algorithm>
#include <cmath>
#include <utility>

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
  released.scale = 1;
  released.held = kNotHeld;
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

void Tableau::noteSize(double constant) {
  largestConstant_ = std::max(largestConstant_, std::abs(constant));
}

bool Tableau::isInfeasible(const Row& row) const {
  if (row.basic == kNoSymbol) return false;
  switch (column(row.basic).kind) {
    case Kind::slack:
      return !(row.expression.constant >= -toleranceOf(row));
    case Kind::fixed:
      return !(std::abs(row.expression.constant) <= toleranceOf(row));
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
  if (noted.isCandidate || noted.kind != Kind::slack || noted.reducedCost.sign() >= 0) return;
  noted.isCandidate = true;
  candidates_.push_back(symbol);
}

// Adds what the variable weighs as a violation, the factor times, to the objective.
void Tableau::addToObjective(Symbol symbol, double factor) {
  const Column& violation = column(symbol);
  if (!violation.strength) return;
  const double strength = *violation.strength;
  factor /= violation.scale;
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
    keep(other);
    LinearRow& target = row(other).expression;
    const double factor = target.take(basic);
    added_.clear();
    target.add(expression, factor, added_);
    for (const Symbol fresh : added_) noteCell(fresh, other);
    noteConstant(other);
  }
  Column& eliminated = column(basic);
  eliminated.rows.clear();
  if (eliminated.reducedCost.isEmpty()) return;
  for (const Cell& cell : expression.cells()) {
    keepCost(cell.symbol);
    column(cell.symbol).reducedCost.add(eliminated.reducedCost, cell.coefficient);
    noteReducedCost(cell.symbol);
  }
  keepCost(basic);
  eliminated.reducedCost.clear();
}

void Tableau::pivot(std::int32_t index, Symbol entering) {
  keep(index);
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

// A free variable to solve a new row for: of those whose coefficients are large enough to divide by
// the one that stands in the fewest rows. What is no more than rounding goes.
Symbol Tableau::freeToSolveFor(LinearRow& expression) const {
  double largest = 0;
  for (const Cell& cell : expression.cells()) {
    if (column(cell.symbol).kind == Kind::free) {
      largest = std::max(largest, std::abs(cell.coefficient));
    }
  }
  if (largest == 0) return kNoSymbol;
  Symbol best = kNoSymbol;
  std::vector<Symbol> rest;
  for (const Cell& cell : expression.cells()) {
    const Column& candidate = column(cell.symbol);
    if (candidate.kind != Kind::free) continue;
    rest.push_back(cell.symbol);
    if (std::abs(cell.coefficient) < kGoodPivot * largest) continue;
    if (best == kNoSymbol || candidate.rows.size() < column(best).rows.size()) {
      best = cell.symbol;
    }
  }
  if (largest > kLeastCoefficient) return best;
  for (const Symbol symbol : rest) expression.take(symbol);
  return kNoSymbol;
}

void Tableau::hold(Slacks slacks, std::span<const Cell> cells, double constant) {
  column(slacks.surplus).held = held_.size();
  held_.push_back({slacks, {cells.begin(), cells.end()}, constant, nextAge_++});
  noteSize(constant);
}

void Tableau::unhold(Symbol surplus) {
  const std::size_t place = std::exchange(column(surplus).held, kNotHeld);
  if (place + 1 < held_.size()) {
    held_[place] = std::move(held_.back());
    column(held_[place].slacks.surplus).held = place;
  }
  held_.pop_back();
}

// Whether the step can be done; where rounding leads it astray it is tried again with rows that
// were made anew.
template <typename Step>
bool Tableau::attempt(const Step& step) {
  Ending ending = step();
  if (ending == Ending::stuck) {
    heal();
    isSure_ = true;
    ending = step();
    if (ending == Ending::stuck) {
      isPatient_ = true;
      ending = step();
      isPatient_ = false;
    }
    isSure_ = false;
  }
  return ending == Ending::done;
}

std::optional<Tableau::Slacks> Tableau::add(std::span<const Cell> cells, double constant,
                                            bool equality, double scale,
                                            std::optional<double> strength) {
  Slacks slacks{make(equality && !strength ? Kind::fixed : Kind::slack)};
  column(slacks.surplus).scale = scale;
  if (strength) {
    slacks.shortfall = make(Kind::slack);
    column(slacks.shortfall).scale = scale;
    column(slacks.shortfall).strength = strength;
    if (equality) column(slacks.surplus).strength = strength;
  }
  noteSize(constant);
  const bool isIn = attempt([&] { return enter(slacks, inNonbasics(cells, constant)); });
  if (!isIn) {
    release(slacks.surplus);
    return std::nullopt;
  }
  hold(slacks, cells, constant);
  addToObjective(slacks.surplus, 1);
  if (strength) addToObjective(slacks.shortfall, 1);
  finish();
  return slacks;
}

// A row for a constraint that is not held yet. Only one that is required may contradict others;
// its row is gone then.
Tableau::Ending Tableau::enter(Slacks slacks, LinearRow expression) {
  const bool isRequired = slacks.shortfall == kNoSymbol;
  const Symbol basic = freeToSolveFor(expression);
  if (basic != kNoSymbol) {
    const double coefficient = expression.take(basic);
    expression.scale(-1 / coefficient);
    expression.add(slacks.surplus, 1 / coefficient);
    if (!isRequired) expression.add(slacks.shortfall, -1 / coefficient);
    eliminate(basic, insertRow(basic, std::move(expression)));
    return Ending::done;
  }
  if (!isRequired && expression.constant < 0) {
    expression.scale(-1);
    expression.add(slacks.surplus, 1);
    insertRow(slacks.shortfall, std::move(expression));
    return Ending::done;
  }
  if (!isRequired) expression.add(slacks.shortfall, 1);
  const std::int32_t index = insertRow(slacks.surplus, std::move(expression));
  if (!isInfeasible(row(index))) return Ending::done;
  beginTrial();
  const Ending ending = endTrial(dualSimplex());
  if (ending != Ending::done) dropRow(index);
  return ending;
}

// The row in which to make a nonbasic surplus basic, so that nothing else becomes infeasible when
// its constraint goes.
std::int32_t Tableau::removalLeavingRow(Symbol surplus) {
  enum Rank { fixed, falling, rising, free, none };
  std::int32_t best = -1;
  Rank bestRank = none;
  double least = 0;
  double largest = 0;
  for (const std::int32_t index : rowsWith(surplus)) {
    const Row& candidate = row(index);
    const Kind kind = column(candidate.basic).kind;
    const double coefficient = candidate.expression.coefficient(surplus);
    if (!isPivot(candidate.expression, coefficient)) continue;
    Rank rank = coefficient < 0 ? falling : rising;
    double ratio = std::max(0.0, candidate.expression.constant) / std::abs(coefficient);
    if (kind != Kind::slack) {
      rank = kind == Kind::fixed ? fixed : free;
      ratio = 0;
    }
    const bool isNear = std::abs(ratio - least) <= kTiny * std::max(1.0, least);
    const bool isBetter = isNear ? std::abs(coefficient) > largest : ratio < least;
    if (rank < bestRank || (rank == bestRank && isBetter)) {
      best = index;
      bestRank = rank;
      least = ratio;
      largest = std::abs(coefficient);
    }
  }
  return best;
}

void Tableau::remove(Slacks slacks) {
  unhold(slacks.surplus);
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
  finish();
}

void Tableau::moveConstants(std::span<const Shift> shifts) {
  const auto move = [this](std::int32_t index, double amount) {
    double& constant = row(index).expression.constant;
    kept_.constants.emplace_back(index, constant);
    constant += amount;
    noteConstant(index);
  };
  for (const Shift& shift : shifts) {
    const std::int32_t own = column(shift.surplus).basicRow;
    if (own >= 0) {
      move(own, shift.amount);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.surplus)) {
      move(index, -shift.amount * row(index).expression.coefficient(shift.surplus));
    }
  }
}

void Tableau::moveHeld(std::span<const Shift> shifts) {
  for (const Shift& shift : shifts) {
    double& constant = heldOf(shift.surplus).constant;
    kept_.given.emplace_back(shift.surplus, constant);
    constant += shift.amount;
    noteSize(constant);
  }
}

bool Tableau::shift(std::span<const Shift> shifts) {
  const bool isDone = attempt([&] {
    beginTrial();
    moveConstants(shifts);
    moveHeld(shifts);
    return endTrial(dualSimplex());
  });
  finish();
  return isDone;
}

Tableau::Slacks Tableau::adopt(Symbol basic, std::span<const Cell> cells, double constant,
                               std::span<const Shift> influence) {
  const Symbol surplus = make(Kind::fixed);
  const auto weigh = [&](const Column& moved, double amount) {
    if (moved.strength) column(surplus).reducedCost.add(*moved.strength, amount / moved.scale);
  };
  for (const Shift& shift : influence) {
    const Column& moved = column(shift.surplus);
    if (moved.basicRow >= 0) {
      addCell(moved.basicRow, surplus, shift.amount);
      weigh(moved, shift.amount);
      continue;
    }
    for (const std::int32_t index : rowsWith(shift.surplus)) {
      addCell(index, surplus, -shift.amount * row(index).expression.coefficient(shift.surplus));
    }
    // What the moved surplus itself weighs does not move with the rows.
    column(surplus).reducedCost.add(moved.reducedCost, -shift.amount);
    weigh(moved, shift.amount);
  }
  LinearRow expression = inNonbasics(cells, constant);
  expression.take(basic);
  expression.scale(-1);
  expression.add(surplus, 1);
  insertRow(basic, std::move(expression));
  hold({surplus}, cells, constant);
  return {surplus};
}

void Tableau::restate(Symbol surplus, std::span<const Cell> cells, double constant) {
  Held& restated = heldOf(surplus);
  restated.cells.assign(cells.begin(), cells.end());
  restated.constant = constant;
}

}  // namespace kindora::layout
