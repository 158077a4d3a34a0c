// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What rounding asks for: trials that can be undone, and rows made anew.
#include <algorithm>
#include <cmath>
#include <utility>

#include "layout/Tableau.h"
#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

// Making the rows anew takes about an exchange for each variable; they last for more of these.
constexpr std::size_t kLastingExchanges = 100;
constexpr std::size_t kLastingExchangesOfAHeld = 2;
// Looking at all rows takes about as long as an exchange in this many.
constexpr std::size_t kRowsForACheck = 32;

}  // namespace

// From here to the end of the trial rows and costs are kept as they were.
void Tableau::beginTrial() {
  isTrial_ = true;
  ++trial_;
  kept_.rows.clear();
  kept_.constants.clear();
  kept_.costs.clear();
  kept_.given.clear();
}

void Tableau::keep(std::int32_t index) {
  Row& kept = row(index);
  if (!isTrial_ || kept.keptFor == trial_) return;
  kept.keptFor = trial_;
  kept_.rows.emplace_back(index, kept);
}

void Tableau::keepCost(Symbol symbol) {
  Column& kept = column(symbol);
  if (!isTrial_ || kept.costKeptFor == trial_) return;
  kept.costKeptFor = trial_;
  kept_.costs.emplace_back(symbol, kept.reducedCost);
}

// Undoes all that the trial has changed, unless it is done.
Tableau::Ending Tableau::endTrial(Ending ending) {
  isTrial_ = false;
  if (ending == Ending::done) return ending;
  for (const auto& [index, before] : kept_.rows) column(row(index).basic).basicRow = -1;
  for (auto& [index, before] : kept_.rows) {
    row(index) = std::move(before);
    column(row(index).basic).basicRow = index;
    for (const Cell& cell : row(index).expression.cells()) noteCell(cell.symbol, index);
    noteConstant(index);
  }
  // The rows were kept after their constants had been moved.
  for (auto kept = kept_.constants.rbegin(); kept != kept_.constants.rend(); ++kept) {
    row(kept->first).expression.constant = kept->second;
    noteConstant(kept->first);
  }
  for (auto& [symbol, before] : kept_.costs) column(symbol).reducedCost = std::move(before);
  for (auto kept = kept_.given.rbegin(); kept != kept_.given.rend(); ++kept) {
    heldOf(kept->first).constant = kept->second;
  }
  return ending;
}

// Whether the rows miss what they were made from. Looks at one solution of all equations, in which
// no nonbasic variable is 0, so that it shows an error in any coefficient.
bool Tableau::drifted() const {
  struct Number {
    double value = 0;
    double size = 0;  // of the parts that it is the sum of
  };
  std::vector<Number> numbers(columns_.size());
  std::uint32_t random = 1;
  for (Number& number : numbers) {
    random = random * 1664525U + 1013904223U;
    number.value = 0.5 + static_cast<double>(random >> 8U) / (1U << 24U);
    number.size = number.value;
  }
  const auto sum = [&numbers](double constant, std::span<const Cell> cells) {
    Number result{constant, std::abs(constant)};
    for (const Cell& cell : cells) {
      const Number& number = numbers[static_cast<std::size_t>(cell.symbol)];
      result.value += cell.coefficient * number.value;
      result.size += std::abs(cell.coefficient) * number.size;
    }
    return result;
  };
  // No basic variable stands in another row.
  for (const Row& row : rows_) {
    if (row.basic == kNoSymbol) continue;
    numbers[static_cast<std::size_t>(row.basic)] =
        sum(row.expression.constant, row.expression.cells());
  }
  return std::ranges::any_of(held_, [&](const Held& held) {
    Number missing = sum(held.constant, held.cells);
    const auto take = [&](Symbol symbol, double factor) {
      if (symbol == kNoSymbol) return;
      const Number& number = numbers[static_cast<std::size_t>(symbol)];
      missing.value += factor * number.value;
      missing.size += number.size;
    };
    take(held.slacks.surplus, -1);
    take(held.slacks.shortfall, 1);
    return !(std::abs(missing.value) <= kDrift * std::max(1.0, missing.size));
  });
}

// What each change ends with: a feasible and optimal tableau whose rows are right.
void Tableau::finish() {
  bool isRight = settle() == Ending::done;
  isRight = isRight && sinceRebuild_ <= kLastingExchanges + kLastingExchangesOfAHeld * held_.size();
  if (isRight && sinceCheck_ * kRowsForACheck > rows_.size()) {
    sinceCheck_ = 0;
    isRight = !drifted();
  }
  if (!isRight) heal();
}

void Tableau::heal() {
  if (rebuild(false) != Ending::stuck) return;
  isPatient_ = true;
  static_cast<void>(rebuild(true));
  isPatient_ = false;
}

// Makes all rows anew from what is held, the oldest first: at the place where the tableau stands,
// or wherever that leads.
Tableau::Ending Tableau::rebuild(bool fromScratch) {
  std::ranges::sort(held_, {}, &Held::age);
  for (std::size_t place = 0; place < held_.size(); ++place) {
    column(held_[place].slacks.surplus).held = place;
  }
  const auto isNonbasic = [this](Symbol symbol) {
    return symbol == kNoSymbol || column(symbol).basicRow < 0;
  };
  std::vector<Symbol> tight;  // surpluses of constraints that are met exactly
  largestConstant_ = 0;
  for (const Held& held : held_) {
    noteSize(held.constant);
    if (!fromScratch && isNonbasic(held.slacks.surplus) && isNonbasic(held.slacks.shortfall)) {
      tight.push_back(held.slacks.surplus);
    }
  }
  for (Symbol symbol = 0; symbol < static_cast<Symbol>(columns_.size()); ++symbol) {
    Column& emptied = column(symbol);
    if (emptied.kind == Kind::free) noteChange(symbol);
    emptied.basicRow = -1;
    emptied.isCandidate = false;
    emptied.rows.clear();
    emptied.reducedCost.clear();
  }
  rows_.clear();
  unusedRows_.clear();
  rowMarks_.clear();
  candidates_.clear();
  for (const Held& held : held_) {
    LinearRow expression;
    expression.constant = held.constant;
    for (const Cell& cell : held.cells) expression.add(cell.symbol, cell.coefficient);
    if (held.slacks.shortfall != kNoSymbol) expression.add(held.slacks.shortfall, 1);
    insertRow(held.slacks.surplus, std::move(expression));
  }
  for (const Symbol surplus : tight) solveForFree(surplus);
  for (const Held& held : held_) solveForFree(held.slacks.surplus);
  for (const Held& held : held_) {
    const std::int32_t index = column(held.slacks.surplus).basicRow;
    if (index < 0 || held.slacks.shortfall == kNoSymbol) continue;
    if (row(index).expression.constant < 0) pivot(index, held.slacks.shortfall);
  }
  infeasible_.clear();
  for (std::int32_t index = 0; index < static_cast<std::int32_t>(rows_.size()); ++index) {
    infeasible_.push_back(index);
  }
  sinceRebuild_ = 0;
  sinceCheck_ = 0;
  // Neither feasible nor optimal, perhaps; without an objective any tableau is optimal.
  isSure_ = true;
  Ending ending = dualSimplex();
  for (const Held& held : held_) {
    addToObjective(held.slacks.surplus, 1);
    if (held.slacks.shortfall != kNoSymbol) addToObjective(held.slacks.shortfall, 1);
  }
  if (ending == Ending::done) ending = settle();
  isSure_ = false;
  return ending;
}

// Gives a free variable the row of the surplus, if both are there.
void Tableau::solveForFree(Symbol surplus) {
  const std::int32_t index = column(surplus).basicRow;
  if (index < 0) return;
  const Symbol basic = freeToSolveFor(row(index).expression);
  if (basic != kNoSymbol) pivot(index, basic);
}

}  // namespace kindora::layout
