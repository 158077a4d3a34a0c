// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The simplex tableau behind the solver, after the published incremental method for linear
// arithmetic constraints (Badros, Borning and Stuckey).
//
// Each row tells a basic variable by nonbasic ones, which are 0. Free variables are unrestricted,
// slacks at least 0, fixed ones exactly 0; the row of a restricted variable never holds a free one.
// The objective is the sum of all violations by strength. Between calls the tableau is feasible and
// optimal.
//
// An expression E is held as E - surplus (+ shortfall) = 0. The surplus of a required equality is
// fixed, any other a slack. A constraint that is not required has a shortfall too, which is its
// violation; so is the surplus of such an equality. A change of the constant by d therefore moves
// each row by d times the surplus's coefficient, with the sign turned. A new required row may begin
// infeasible: since the tableau is optimal, the dual simplex mends it as it does after a changed
// constant. Of equal choices the smallest symbol is taken, so that degenerate systems end.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "layout/LinearRow.h"
#include "layout/SymbolicWeight.h"

namespace kindora::layout {

class Tableau final {
 public:
  /// The variables that stand for a constraint; a required one has no shortfall.
  struct Slacks {
    Symbol surplus = kNoSymbol;
    Symbol shortfall = kNoSymbol;
  };
  /// By how much the expression of the surplus's constraint moves.
  struct Shift {
    Symbol surplus = kNoSymbol;
    double amount = 0;
  };

  [[nodiscard]] Symbol makeFree();
  /// The free variable must be in no constraint.
  void releaseFree(Symbol symbol);
  [[nodiscard]] double value(Symbol symbol) const;

  /// Adds: constant + the cells, of free variables, is 0, or at least 0; without a strength it must
  /// be. None and nothing changed (but for rounding) when the required constraints would contradict
  /// each other.
  [[nodiscard]] std::optional<Slacks> add(std::span<const Cell> cells, double constant,
                                          bool equality, std::optional<double> strength);
  void remove(Slacks slacks);
  /// Adds the amounts to the constants of the expressions. False and nothing changed (but for
  /// rounding) when the required constraints would contradict each other.
  [[nodiscard]] bool shift(std::span<const Shift> shifts);
  /// Takes in the required equality by which a fresh free variable was told outside until now, as
  /// constant + the cells, and which the constraints here have used in that form; it begins as
  /// basic. A unit of the equality's surplus moves it by `pull` and the expressions by the
  /// influence.
  [[nodiscard]] Slacks adopt(Symbol basic, std::span<const Cell> cells, double constant,
                             double pull, std::span<const Shift> influence);

  /// The free variables whose values may have changed since the last call of clearChanged.
  [[nodiscard]] std::span<const Symbol> changed() const { return changed_; }
  void clearChanged();

 private:
  enum class Kind : std::uint8_t { unused, free, slack, fixed };
  struct Column {
    Kind kind = Kind::unused;
    bool isChanged = false;
    bool isCandidate = false;
    std::int32_t basicRow = -1;      // where it is basic
    std::optional<double> strength;  // of which it is a violation
    // Where it has a cell; entries may be stale or double, see rowsWith.
    std::vector<std::int32_t> rows;
    std::size_t rowLimit = 16;
    SymbolicWeight reducedCost;  // while it is nonbasic
  };
  struct Row {
    Symbol basic = kNoSymbol;
    LinearRow expression;
  };
  using Pivots = std::vector<std::pair<Symbol, Symbol>>;  // entering and leaving

  [[nodiscard]] Symbol make(Kind kind);
  void release(Symbol symbol);
  [[nodiscard]] Column& column(Symbol symbol);
  [[nodiscard]] const Column& column(Symbol symbol) const;
  [[nodiscard]] Row& row(std::int32_t index) { return rows_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const Row& row(std::int32_t index) const {
    return rows_[static_cast<std::size_t>(index)];
  }

  [[nodiscard]] const std::vector<std::int32_t>& rowsWith(Symbol symbol);
  void noteCell(Symbol symbol, std::int32_t index);
  void noteConstant(std::int32_t index);
  void noteChange(Symbol symbol);
  [[nodiscard]] bool isInfeasible(const Row& row) const;
  [[nodiscard]] LinearRow inNonbasics(std::span<const Cell> cells, double constant) const;
  void addToObjective(Symbol symbol, double factor);
  void addReducedCost(Symbol symbol, const SymbolicWeight& cost, double factor);
  void noteReducedCost(Symbol symbol);

  std::int32_t insertRow(Symbol basic, LinearRow expression);
  void dropRow(std::int32_t index);
  void addCell(std::int32_t index, Symbol symbol, double coefficient);
  void moveConstants(std::span<const Shift> shifts, double factor);
  void eliminate(Symbol basic, std::int32_t index);
  void pivot(std::int32_t index, Symbol entering);
  void primalSimplex();
  [[nodiscard]] Symbol primalEntering();
  [[nodiscard]] std::int32_t primalLeavingRow(Symbol entering);
  [[nodiscard]] bool dualSimplex();
  [[nodiscard]] std::int32_t dualLeavingRow();
  [[nodiscard]] Symbol dualEntering(const Row& row) const;
  [[nodiscard]] std::int32_t removalLeavingRow(Symbol surplus);
  [[nodiscard]] Symbol basicFor(const LinearRow& expression) const;

  std::vector<Column> columns_;
  std::vector<Symbol> unusedSymbols_;
  std::vector<Row> rows_;
  std::vector<std::int32_t> unusedRows_;
  std::vector<Symbol> changed_;
  std::vector<Symbol> candidates_;        // all that may have a negative reduced cost
  std::vector<std::int32_t> infeasible_;  // all rows that may be so
  Pivots pivots_;                         // of the present run of the dual simplex
  std::vector<std::uint32_t> rowMarks_;
  std::uint32_t rowMark_ = 0;
  std::vector<Symbol> added_;  // scratch of eliminate
};

}  // namespace kindora::layout
