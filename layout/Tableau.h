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
// constant.
//
// Rounding. Rows are changed by each exchange and remember nothing, so errors only grow. The
// expressions are kept beside them as they were given. From these the rows are made anew, at the
// place where the tableau stands, when they miss them (see drifted), after many exchanges, when
// exchanges do not end, and before a refusal that is not beyond doubt. No exchange divides by a
// coefficient that is small in its row.
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
  /// be. All is the given scale times as large as its violation counts. None and nothing changed
  /// when the required constraints would contradict each other.
  [[nodiscard]] std::optional<Slacks> add(std::span<const Cell> cells, double constant,
                                          bool equality, double scale,
                                          std::optional<double> strength);
  void remove(Slacks slacks);
  /// Adds the amounts to the constants of the expressions. False and nothing changed when the
  /// required constraints would contradict each other.
  [[nodiscard]] bool shift(std::span<const Shift> shifts);
  /// Takes in the required equality, constant + the cells is 0, by which a fresh free variable was
  /// told outside until now, and which the constraints here have used in that form. The variable
  /// begins as basic, and its coefficient is 1; when it moves by 1 the expressions move by the
  /// influence. Each of these must be restated before the next call of another kind.
  [[nodiscard]] Slacks adopt(Symbol basic, std::span<const Cell> cells, double constant,
                             std::span<const Shift> influence);
  /// The same expression by other variables.
  void restate(Symbol surplus, std::span<const Cell> cells, double constant);

  /// How many steps from one solution to the next have been made.
  [[nodiscard]] std::uint64_t exchanges() const { return exchanges_; }

  /// The free variables whose values may have changed since the last call of clearChanged.
  [[nodiscard]] std::span<const Symbol> changed() const { return changed_; }
  void clearChanged();

 private:
  enum class Kind : std::uint8_t { unused, free, slack, fixed };
  enum class Ending : std::uint8_t {
    done,
    contradiction,
    stuck,  // rounding leads astray: the rows must be made anew
  };
  static constexpr std::size_t kNotHeld = ~std::size_t{0};
  struct Column {
    Kind kind = Kind::unused;
    bool isChanged = false;
    bool isCandidate = false;
    std::int32_t basicRow = -1;      // where it is basic
    std::optional<double> strength;  // of which it is a violation
    double scale = 1;                // times as large as the violation counts
    // Where it has a cell; entries may be stale or double, see rowsWith.
    std::vector<std::int32_t> rows;
    std::size_t rowLimit = 16;
    SymbolicWeight reducedCost;     // while it is nonbasic
    std::size_t held = kNotHeld;    // the expression whose surplus it is
    std::uint32_t costKeptFor = 0;  // the trial that keeps its reduced cost
  };
  struct Row {
    Symbol basic = kNoSymbol;
    LinearRow expression;
    std::uint32_t keptFor = 0;  // the trial that keeps it
  };
  // An expression as it was given.
  struct Held {
    Slacks slacks;
    std::vector<Cell> cells;
    double constant = 0;
    std::uint64_t age = 0;  // the older the smaller
  };
  // What a trial has changed, as it was before.
  struct Kept {
    std::vector<std::pair<std::int32_t, Row>> rows;
    std::vector<std::pair<std::int32_t, double>> constants;
    std::vector<std::pair<Symbol, SymbolicWeight>> costs;
    std::vector<std::pair<Symbol, double>> given;  // constants of what is held
  };

  [[nodiscard]] Symbol make(Kind kind);
  void release(Symbol symbol);
  [[nodiscard]] Column& column(Symbol symbol);
  [[nodiscard]] const Column& column(Symbol symbol) const;
  [[nodiscard]] Row& row(std::int32_t index) { return rows_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const Row& row(std::int32_t index) const {
    return rows_[static_cast<std::size_t>(index)];
  }

  // Tableau.cpp: rows and columns, and the constraints that they stand for
  [[nodiscard]] const std::vector<std::int32_t>& rowsWith(Symbol symbol);
  void noteCell(Symbol symbol, std::int32_t index);
  void noteConstant(std::int32_t index);
  void noteChange(Symbol symbol);
  void noteSize(double constant);
  [[nodiscard]] bool isInfeasible(const Row& row) const;
  [[nodiscard]] LinearRow inNonbasics(std::span<const Cell> cells, double constant) const;
  void addToObjective(Symbol symbol, double factor);
  void noteReducedCost(Symbol symbol);
  std::int32_t insertRow(Symbol basic, LinearRow expression);
  void dropRow(std::int32_t index);
  void addCell(std::int32_t index, Symbol symbol, double coefficient);
  void moveConstants(std::span<const Shift> shifts);
  void eliminate(Symbol basic, std::int32_t index);
  void pivot(std::int32_t index, Symbol entering);
  [[nodiscard]] Symbol freeToSolveFor(LinearRow& expression) const;
  template <typename Step>
  [[nodiscard]] bool attempt(const Step& step);
  [[nodiscard]] Ending enter(Slacks slacks, LinearRow expression);
  void moveHeld(std::span<const Shift> shifts);
  [[nodiscard]] std::int32_t removalLeavingRow(Symbol surplus);
  void hold(Slacks slacks, std::span<const Cell> cells, double constant);
  void unhold(Symbol surplus);
  [[nodiscard]] Held& heldOf(Symbol surplus) { return held_[column(surplus).held]; }

  // TableauSimplex.cpp: from one solution to the next
  class Run;
  [[nodiscard]] Ending settle();
  [[nodiscard]] Ending primalSimplex();
  [[nodiscard]] Symbol primalEntering();
  [[nodiscard]] std::int32_t primalLeavingRow(Symbol entering, bool bySymbol);
  [[nodiscard]] Ending dualSimplex();
  [[nodiscard]] std::int32_t dualLeavingRow(bool bySymbol);
  [[nodiscard]] Symbol dualEntering(const Row& row, bool bySymbol) const;
  [[nodiscard]] bool isCertain(const Row& contradicting) const;
  [[nodiscard]] static bool isPivot(const LinearRow& expression, double coefficient);
  [[nodiscard]] double toleranceOf(const Row& row) const;
  void exchange(std::int32_t index, Symbol entering);

  // TableauRebuild.cpp: what rounding asks for
  void beginTrial();
  Ending endTrial(Ending ending);
  void keep(std::int32_t index);
  void keepCost(Symbol symbol);
  void finish();
  [[nodiscard]] bool drifted() const;
  void heal();
  [[nodiscard]] Ending rebuild(bool fromScratch);
  void solveForFree(Symbol surplus);

  std::vector<Column> columns_;
  std::vector<Symbol> unusedSymbols_;
  std::vector<Row> rows_;
  std::vector<std::int32_t> unusedRows_;
  std::vector<Held> held_;
  std::uint64_t nextAge_ = 0;
  double largestConstant_ = 0;  // of those held since the last rebuild
  std::vector<Symbol> changed_;
  std::vector<Symbol> candidates_;        // all that may have a negative reduced cost
  std::vector<std::int32_t> infeasible_;  // all rows that may be so
  std::vector<std::uint32_t> rowMarks_;
  std::uint32_t rowMark_ = 0;
  std::vector<Symbol> added_;  // scratch of eliminate

  std::uint64_t exchanges_ = 0;
  std::size_t sinceRebuild_ = 0;  // exchanges
  std::size_t sinceCheck_ = 0;
  bool isPatient_ = false;  // the smallest symbol is taken from the first exchange on
  bool isSure_ = false;     // rows have just been made anew: what they say is taken
  bool isTrial_ = false;
  std::uint32_t trial_ = 0;
  Kept kept_;
};

}  // namespace kindora::layout
