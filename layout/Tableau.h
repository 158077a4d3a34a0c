// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The simplex tableau behind the solver, after the published incremental method for linear
// arithmetic constraints (Badros, Borning and Stuckey).
//
// Each row tells a basic symbol by nonbasic ones, which are 0. External symbols are unrestricted,
// slack symbols at least 0, dummy symbols exactly 0; the row of a restricted symbol never holds an
// external one. Between calls every row is feasible and no exchange would lower the weights.
//
// An expression E is held as E - marker (+ other) = 0. The marker of a required equality is a
// dummy, any other a slack; a constraint that is not required has the other slack, its violation,
// which for an equality the marker is too. A change of the constant by d therefore moves each row
// by d times the marker's coefficient, with the sign turned. A new required row may begin
// infeasible: since no exchange would lower the weights, the dual simplex mends it as it does after
// a changed constant. Of equal choices the smallest symbol is taken, so that degenerate systems
// end.
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
  /// What stands for a constraint; `other` is none for a required one.
  struct Markers {
    Symbol marker = kNoSymbol;
    Symbol other = kNoSymbol;
  };
  /// A constraint's expression, by `amount` times a change.
  struct Shift {
    Symbol marker = kNoSymbol;
    double amount = 0;
  };

  [[nodiscard]] Symbol makeExternal();
  /// The symbol must be in no constraint.
  void releaseExternal(Symbol symbol);
  [[nodiscard]] double value(Symbol symbol) const;

  /// Adds: constant + the external cells is 0, or at least 0; without a strength it must be. None
  /// and nothing changed (but for rounding) when the required constraints would contradict each
  /// other.
  [[nodiscard]] std::optional<Markers> add(std::span<const Cell> cells, double constant,
                                           bool equality, std::optional<double> strength);
  void remove(Markers markers);
  /// Adds the amounts to the constants of the expressions. False and nothing changed (but for
  /// rounding) when the required constraints would contradict each other.
  [[nodiscard]] bool shift(std::span<const Shift> shifts);
  /// Takes in the required equality by which a fresh external symbol was told outside until now, as
  /// constant + the cells, and which the constraints here have used in that form. A unit of its
  /// marker moves the symbol by `pull` and the expressions by the influence.
  [[nodiscard]] Markers adopt(Symbol external, std::span<const Cell> cells, double constant,
                              double pull, std::span<const Shift> influence);

  /// The external symbols whose values may have changed since the last call of clearChanged.
  [[nodiscard]] std::span<const Symbol> changed() const { return changed_; }
  void clearChanged();

 private:
  enum class Kind : std::uint8_t { unused, external, slack, dummy };
  struct SymbolRecord {
    Kind kind = Kind::unused;
    bool isChanged = false;
    bool isCandidate = false;
    std::int32_t row = -1;           // where it is basic
    std::optional<double> strength;  // of which it is a violation
    // Where it has a cell; entries may be stale or double, see rowsWith.
    std::vector<std::int32_t> column;
    std::size_t columnLimit = 16;
    SymbolicWeight cost;  // of a unit, while it is not basic
  };
  struct Row {
    Symbol basic = kNoSymbol;
    LinearRow expression;
  };
  using Pivots = std::vector<std::pair<Symbol, Symbol>>;  // entering and leaving

  [[nodiscard]] Symbol make(Kind kind);
  void release(Symbol symbol);
  [[nodiscard]] SymbolRecord& record(Symbol symbol);
  [[nodiscard]] const SymbolRecord& record(Symbol symbol) const;
  [[nodiscard]] Row& row(std::int32_t index) { return rows_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const Row& row(std::int32_t index) const {
    return rows_[static_cast<std::size_t>(index)];
  }

  [[nodiscard]] const std::vector<std::int32_t>& rowsWith(Symbol symbol);
  void noteCell(Symbol symbol, std::int32_t index);
  void noteConstant(std::int32_t index);
  void noteChange(Symbol external);
  [[nodiscard]] bool isInfeasible(const Row& row) const;
  [[nodiscard]] LinearRow substituted(std::span<const Cell> cells, double constant) const;
  void charge(Symbol symbol, double factor);
  void addCost(Symbol symbol, const SymbolicWeight& cost, double factor);
  void noteCost(Symbol symbol);

  std::int32_t insertRow(Symbol basic, LinearRow expression);
  void dropRow(std::int32_t index);
  void addCell(std::int32_t index, Symbol symbol, double coefficient);
  void moveConstants(std::span<const Shift> shifts, double factor);
  void substituteEverywhere(Symbol symbol, std::int32_t index);
  void pivot(std::int32_t index, Symbol entering);
  void optimize();
  [[nodiscard]] Symbol takeCandidate();
  [[nodiscard]] std::int32_t rowThatLimits(Symbol entering);
  [[nodiscard]] bool restoreFeasibility();
  [[nodiscard]] std::int32_t takeInfeasible();
  [[nodiscard]] Symbol symbolThatMends(const Row& row) const;
  [[nodiscard]] std::int32_t rowToFree(Symbol marker);
  [[nodiscard]] Symbol subjectOf(const LinearRow& expression) const;

  std::vector<SymbolRecord> symbols_;
  std::vector<Symbol> freeSymbols_;
  std::vector<Row> rows_;
  std::vector<std::int32_t> freeRows_;
  std::vector<Symbol> changed_;
  std::vector<Symbol> candidates_;        // all that may have a negative cost
  std::vector<std::int32_t> infeasible_;  // all rows that may be so
  Pivots pivots_;                         // of the present attempt to restore feasibility
  std::vector<std::uint32_t> rowMarks_;
  std::uint32_t rowMark_ = 0;
  std::vector<Symbol> added_;  // scratch of substituteEverywhere
};

}  // namespace kindora::layout
