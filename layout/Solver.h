// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Finds numbers that satisfy linear constraints of many strengths, and keeps them satisfied while
// constraints come, go and change, without solving anew.
//
//   Solver solver;
//   const Variable left = solver.makeVariable();
//   const Variable width = solver.makeVariable();
//   const ConstraintId size = solver.add({{{width}}, Relation::equal, 320}).constraint;
//   solver.add({{{left, 2}, {width}}, Relation::equal, 375});  // 2 left + width = 375
//   solver.setConstant(size, 300);
//   solver.update();
//   solver.value(left);  // 37.5
//
// A required equality that names a variable on which nothing else rests yet becomes that variable's
// definition: its value is told by others, in order, at no cost to the rest. All other constraints
// share an incremental simplex tableau. Either way the solution is the same; it costs least to add
// what is required and equal first, and to give an element a variable for each size that has wishes
// of its own, rather than one for each edge.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "layout/Constraint.h"
#include "layout/Tableau.h"
#include "layout/Variable.h"

namespace kindora::layout {

/// What became of a request; all but `done` leave the solution as it was, but for rounding.
enum class Outcome {
  done,
  unsatisfiable,      ///< it contradicts required constraints that are held, or itself
  unknownVariable,    ///< a handle that names none of the solver's variables
  unknownConstraint,  ///< a handle that names none of the solver's constraints
  notFinite,          ///< a coefficient, constant or strength is infinite or not a number
};

class Solver final {
 public:
  struct Added {
    Outcome outcome = Outcome::done;
    ConstraintId constraint;  ///< names nothing unless done
  };

  [[nodiscard]] Variable makeVariable();
  /// Removes the constraints that mention the variable, too.
  Outcome removeVariable(Variable variable);

  /// Each call adds a constraint of its own, equal or redundant ones included. Without terms a
  /// required constraint is held if it is true of 0, any other without effect.
  Added add(const Constraint& constraint);
  Outcome remove(ConstraintId id);
  /// Changes the right-hand side. To try out values for a variable, give it an equality of the
  /// strength that they are to have and change its constant.
  Outcome setConstant(ConstraintId id, double constant);

  /// Brings the values up to date, for the price of those that changed.
  void update();
  /// As of the last update. 0 for a variable that no constraint holds, that is new, or that is not
  /// known.
  [[nodiscard]] double value(Variable variable) const {
    const bool isKnown = variable.index < values_.size() &&
                         values_[variable.index].generation == variable.generation;
    return isKnown ? values_[variable.index].value : 0;
  }

 private:
  using Index = std::uint32_t;
  static constexpr Index kNone = ~Index{0};

  // A constraint that names a variable, and as which of its terms.
  struct Use {
    Index constraint = kNone;
    Index term = 0;
  };
  struct Value {
    std::uint32_t generation = 1;
    double value = 0;
  };
  struct VariableRecord {
    std::vector<Use> uses;
    Index definition = kNone;     // the constraint that defines it
    Symbol symbol = kNoSymbol;    // while a constraint of the tableau rests on it
    std::uint32_t leafCount = 0;  // the constraints that do
    std::uint32_t mark = 0;
    bool isHeld = true;
    bool mayReachTableau = false;  // over definitions; never wrongly false
    bool isDirty = false;
    double amount = 0;  // scratch of a walk
  };
  struct HeldTerm {
    Index variable = kNone;
    Index use = 0;  // its place among the variable's uses
    double coefficient = 0;
  };
  enum class Kind : std::uint8_t { unused, empty, definition, tableau };
  struct ConstraintRecord {
    std::uint32_t generation = 1;
    Kind kind = Kind::unused;
    Relation relation = Relation::equal;
    bool isRequired = true;
    Index subject = 0;  // the term of the variable that it defines
    double constant = 0;
    std::vector<HeldTerm> terms;
    Tableau::Markers markers;
    std::vector<Index> leaves;  // the undefined variables on which it rests
  };
  // A sum over undefined variables and a constant.
  struct Expansion {
    std::vector<Index> leaves;
    std::vector<Cell> cells;  // parallel to the leaves
    double constant = 0;
  };
  // A place in a walk over definitions.
  struct Step {
    Index variable = kNone;
    Index next = 0;
  };

  [[nodiscard]] bool isKnown(Variable variable) const;
  [[nodiscard]] bool isKnown(ConstraintId id) const;
  [[nodiscard]] Outcome merge(const Constraint& constraint);
  [[nodiscard]] Index takeConstraint();
  void freeConstraint(Index index);
  void attach(Index index);
  void detach(Index index);

  [[nodiscard]] Index definableTerm();
  [[nodiscard]] bool othersRestOn(Index variable);
  void define(Index index, Index subject);
  void undefine(Index index);
  [[nodiscard]] bool enterTableau(Index index, std::optional<double> strength);
  void leaveTableau(Index index);
  void promote(Index index, std::span<const Index> reached, std::span<const Tableau::Shift> shifts);

  void beginWalk();
  [[nodiscard]] bool visit(Index variable);
  void walkUp(std::span<const HeldTerm> terms, Index except);
  void walkDown(Index variable);
  void markReaching();
  [[nodiscard]] Expansion expand(std::span<const HeldTerm> terms, Index except);
  [[nodiscard]] std::vector<Index> reachedFrom(Index variable);
  [[nodiscard]] std::vector<Tableau::Shift> influence(Index variable, double amount,
                                                      std::span<const Index> reached);
  void hold(Index leaf);
  void release(Index leaf);
  void markDirty(Index variable);
  [[nodiscard]] double evaluate(const ConstraintRecord& definition) const;

  Tableau tableau_;
  std::vector<Value> values_;  // apart from the records, since reading is frequent
  std::vector<VariableRecord> variables_;
  std::vector<Index> freeVariables_;
  std::vector<ConstraintRecord> constraints_;
  std::vector<Index> freeConstraints_;
  std::vector<Index> bySymbol_;  // the variable of an external symbol
  std::vector<Index> dirty_;
  std::uint32_t mark_ = 0;

  // Scratch, kept for its room.
  std::vector<HeldTerm> merged_;
  std::vector<Step> path_;
  std::vector<Index> order_;  // of the last walk: each variable behind those it was reached for
  std::vector<Index> above_;
  std::vector<Index> below_;
};

}  // namespace kindora::layout
