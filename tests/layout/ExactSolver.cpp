// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/layout/ExactSolver.h"

#include <utility>

namespace kindora::layout {

ExactSolver::ExactSolver(std::size_t variables) {
  for (std::size_t i = 0; i < variables; ++i) make(Kind::free);
}

// A symbol that has gone is used again, so that the tableau does not grow.
std::size_t ExactSolver::make(Kind kind, std::optional<double> strength) {
  std::size_t symbol = 0;
  while (symbol < symbols_.size() && symbols_[symbol].kind != Kind::gone) ++symbol;
  if (symbol == symbols_.size()) {
    symbols_.emplace_back();
    for (Row& row : rows_) row.cells.emplace_back();
  }
  symbols_[symbol] = {kind, strength};
  return symbol;
}

std::size_t ExactSolver::rowOf(std::size_t symbol) const {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row].basic == symbol) return row;
  }
  return kNone;
}

void ExactSolver::exchange(std::size_t row, std::size_t entering) {
  Row& turned = rows_[row];
  const Rational pivot = turned.cells[entering];
  turned.cells[entering] = 0;
  turned.cells[turned.basic] = -1;
  turned.basic = entering;
  turned.constant = -turned.constant / pivot;
  for (Rational& cell : turned.cells) {
    if (cell.sign() != 0) cell = -cell / pivot;
  }
  for (Row& other : rows_) {
    const Rational factor = other.cells[entering];
    if (&other == &turned || factor.sign() == 0) continue;
    other.cells[entering] = 0;
    other.constant = other.constant + factor * turned.constant;
    for (std::size_t i = 0; i < other.cells.size(); ++i) {
      if (turned.cells[i].sign() != 0) other.cells[i] = other.cells[i] + factor * turned.cells[i];
    }
  }
}

std::map<double, Rational> ExactSolver::cost(std::size_t symbol) const {
  std::map<double, Rational> result;
  if (symbols_[symbol].strength) result[*symbols_[symbol].strength] = 1;
  for (const Row& row : rows_) {
    const auto& strength = symbols_[row.basic].strength;
    if (strength) result[*strength] = result[*strength] + row.cells[symbol];
  }
  return result;
}

int ExactSolver::costSign(std::size_t symbol) const {
  const std::map<double, Rational> all = cost(symbol);
  for (auto one = all.rbegin(); one != all.rend(); ++one) {
    if (one->second.sign() != 0) return one->second.sign();
  }
  return 0;
}

bool ExactSolver::dual() {
  while (true) {
    std::size_t leaving = kNone;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const Kind kind = symbols_[rows_[row].basic].kind;
      const int sign = rows_[row].constant.sign();
      const bool isOut = (kind == Kind::slack && sign < 0) || (kind == Kind::fixed && sign != 0);
      if (isOut && (leaving == kNone || rows_[row].basic < rows_[leaving].basic)) leaving = row;
    }
    if (leaving == kNone) return true;
    const Row& row = rows_[leaving];
    std::size_t entering = kNone;
    std::map<double, Rational> least;
    for (std::size_t symbol = 0; symbol < symbols_.size(); ++symbol) {
      const Rational pull = row.constant.sign() < 0 ? row.cells[symbol] : -row.cells[symbol];
      if (symbols_[symbol].kind != Kind::slack || pull.sign() <= 0) continue;
      std::map<double, Rational> ratio = cost(symbol);
      for (auto& [strength, amount] : ratio) amount = amount / pull;
      int order = entering == kNone ? -1 : 0;
      if (order == 0) {
        std::map<double, Rational> difference = ratio;
        for (const auto& [strength, amount] : least) {
          difference[strength] = difference[strength] - amount;
        }
        for (auto one = difference.rbegin(); one != difference.rend() && order == 0; ++one) {
          order = one->second.sign();
        }
      }
      if (order >= 0) continue;
      entering = symbol;
      least = std::move(ratio);
    }
    if (entering == kNone) return false;
    exchange(leaving, entering);
    ++exchanges_;
  }
}

void ExactSolver::primal() {
  while (true) {
    std::size_t entering = 0;
    const auto lowers = [this](std::size_t symbol) {
      return symbols_[symbol].kind == Kind::slack && rowOf(symbol) == kNone && costSign(symbol) < 0;
    };
    while (entering < symbols_.size() && !lowers(entering)) ++entering;
    if (entering == symbols_.size()) return;
    std::size_t leaving = kNone;
    Rational least;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const Kind kind = symbols_[rows_[row].basic].kind;
      const Rational& cell = rows_[row].cells[entering];
      if (cell.sign() == 0 || kind == Kind::free) continue;
      if (kind == Kind::slack && cell.sign() > 0) continue;
      const Rational ratio = kind == Kind::fixed ? Rational() : -rows_[row].constant / cell;
      const bool isNearer = leaving == kNone || ratio < least ||
                            (ratio == least && rows_[row].basic < rows_[leaving].basic);
      if (!isNearer) continue;
      leaving = row;
      least = ratio;
    }
    if (leaving == kNone) throw std::logic_error("the violations have no least sum");
    exchange(leaving, entering);
    ++exchanges_;
  }
}

std::optional<std::size_t> ExactSolver::add(const Sum& sum) {
  const ExactSolver before = *this;
  const bool isRequired = sum.strength >= kRequired;
  const bool isEqual = sum.relation == Relation::equal;
  Held held;
  held.sign = sum.relation == Relation::lessThanOrEqual ? -1 : 1;
  held.constant = sum.constant;
  std::optional<double> strength;
  if (!isRequired) strength = sum.strength;
  held.surplus = make(isRequired && isEqual ? Kind::fixed : Kind::slack,
                      isEqual ? strength : std::optional<double>());
  if (!isRequired) held.shortfall = make(Kind::slack, strength);

  Row added{held.surplus, -held.sign * sum.constant, std::vector<Rational>(symbols_.size())};
  for (std::size_t i = 0; i < sum.coefficients.size(); ++i) {
    if (sum.coefficients[i].sign() == 0) continue;
    const Rational factor = held.sign * sum.coefficients[i];
    const std::size_t row = rowOf(i);
    if (row == kNone) {
      added.cells[i] = added.cells[i] + factor;
      continue;
    }
    added.constant = added.constant + factor * rows_[row].constant;
    for (std::size_t j = 0; j < symbols_.size(); ++j) {
      if (rows_[row].cells[j].sign() == 0) continue;
      added.cells[j] = added.cells[j] + factor * rows_[row].cells[j];
    }
  }
  if (!isRequired) added.cells[held.shortfall] = 1;
  rows_.push_back(std::move(added));
  Row& row = rows_.back();
  std::size_t free = 0;
  while (free < sum.coefficients.size() && row.cells[free].sign() == 0) ++free;
  if (free < sum.coefficients.size()) {
    exchange(rows_.size() - 1, free);
  } else if (!isRequired && row.constant.sign() < 0) {
    exchange(rows_.size() - 1, held.shortfall);
  } else if (!dual()) {
    const std::size_t used = exchanges_;
    *this = before;
    exchanges_ = used;
    return std::nullopt;
  }
  primal();
  std::size_t name = 0;
  while (name < held_.size() && held_[name].surplus != kNone) ++name;
  if (name == held_.size()) held_.emplace_back();
  held_[name] = held;
  return name;
}

void ExactSolver::drop(std::size_t symbol) {
  if (symbol == kNone) return;
  const std::size_t row = rowOf(symbol);
  if (row != kNone) rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
  for (Row& other : rows_) other.cells[symbol] = 0;
  symbols_[symbol] = {Kind::gone, {}};
}

void ExactSolver::remove(std::size_t name) {
  const Held held = std::exchange(held_[name], {});
  symbols_[held.surplus].strength.reset();
  if (held.shortfall != kNone) symbols_[held.shortfall].strength.reset();
  if (rowOf(held.surplus) == kNone) {
    // Among equals the first; what is at its only value before what falls, rises, is free.
    std::size_t best = kNone;
    int bestRank = 4;
    Rational least;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const Rational& cell = rows_[row].cells[held.surplus];
      if (cell.sign() == 0) continue;
      const Kind kind = symbols_[rows_[row].basic].kind;
      int rank = cell.sign() < 0 ? 1 : 2;
      if (kind != Kind::slack) rank = kind == Kind::fixed ? 0 : 3;
      Rational ratio;
      if (kind == Kind::slack) {
        ratio = cell.sign() < 0 ? -rows_[row].constant / cell : rows_[row].constant / cell;
      }
      if (rank > bestRank || (rank == bestRank && !(ratio < least))) continue;
      best = row;
      bestRank = rank;
      least = ratio;
    }
    if (best != kNone) exchange(best, held.surplus);
  }
  drop(held.surplus);
  drop(held.shortfall);
  primal();
}

bool ExactSolver::setConstant(std::size_t name, const Rational& constant) {
  const ExactSolver before = *this;
  Held& held = held_[name];
  const Rational amount = held.sign * (held.constant - constant);
  held.constant = constant;
  const std::size_t own = rowOf(held.surplus);
  if (own != kNone) {
    rows_[own].constant = rows_[own].constant + amount;
  } else {
    for (Row& row : rows_) row.constant = row.constant - amount * row.cells[held.surplus];
  }
  if (!dual()) {
    const std::size_t used = exchanges_;
    *this = before;
    exchanges_ = used;
    return false;
  }
  primal();
  return true;
}

std::map<double, double> ExactSolver::violations() const {
  std::map<double, double> result;
  for (const Symbol& symbol : symbols_) {
    if (symbol.strength) result.try_emplace(*symbol.strength, 0);
  }
  for (const Row& row : rows_) {
    const auto& strength = symbols_[row.basic].strength;
    if (strength) result[*strength] += row.constant.asDouble();
  }
  return result;
}

}  // namespace kindora::layout
