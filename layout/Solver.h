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
#include "layout/Definitions.h"
#include "layout/Tableau.h"
#include "layout/Variable.h"

namespace kindora::layout {

/// What became of a request; all but `done` leave the solution as it was.
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
  /// How many steps the tableau has made from one solution to the next, in all: what calls cost.
  [[nodiscard]] std::uint64_t exchanges() const { return tableau_.exchanges(); }
  /// As of the last update. 0 for a variable that no constraint holds, that is new, or that is not
  /// known.
  [[nodiscard]] double value(Variable variable) const {
    return isKnown(variable) ? variables_[variable.index].value : 0;
  }

 private:
  using Index = Definitions::Index;
  static constexpr Index kNone = Definitions::kNone;

  struct VariableRecord {
    double value = 0;
    std::uint32_t generation = 1;
    Symbol symbol = kNoSymbol;    // while a constraint of the tableau rests on it
    std::uint32_t restCount = 0;  // how many do
    bool isHeld = true;
    bool isDirty = false;
  };
  enum class Kind : std::uint8_t { unused, empty, definition, tableau };
  struct ConstraintRecord {
    std::uint32_t generation = 1;
    Kind kind = Kind::unused;
    Relation relation = Relation::equal;
    bool isRequired = true;
    double factor = 1;  // of its sum, as the tableau holds it
    Tableau::Slacks slacks;
    std::vector<Index> leaves;  // on which it rests
  };

  [[nodiscard]] bool isKnown(Variable variable) const {
    return variable.index < variables_.size() && variables_[variable.index].isHeld &&
           variables_[variable.index].generation == variable.generation;
  }
  [[nodiscard]] bool isKnown(ConstraintId id) const;
  [[nodiscard]] Outcome merge(const Constraint& constraint);
  [[nodiscard]] Index takeConstraint();
  void freeConstraint(Index index);

  [[nodiscard]] Index definableTerm();
  void undefine(Index index);
  [[nodiscard]] bool enterTableau(Index index, double constant, std::optional<double> strength);
  void leaveTableau(Index index);
  void promote(Index index, std::span<const Definitions::Movement> moved);
  [[nodiscard]] std::vector<Tableau::Shift> shiftsOf(
      std::span<const Definitions::Movement> moved) const;

  void hold(const Definitions::Expansion& sum);
  void tell(const Definitions::Expansion& sum, double factor);
  void hold(Index leaf);
  void release(Index leaf);
  void markDirty(Index variable);
  [[nodiscard]] double evaluate(const Definitions::Constraint& definition) const;

  Definitions definitions_;
  Tableau tableau_;
  std::vector<VariableRecord> variables_;
  std::vector<Index> freeVariables_;
  std::vector<ConstraintRecord> constraints_;
  std::vector<Index> freeConstraints_;
  std::vector<Index> bySymbol_;  // the variable of a free symbol
  std::vector<Index> dirty_;

  // Scratch, kept for its room.
  std::vector<Definitions::Term> merged_;
  std::vector<Cell> cells_;  // of the last sum that was told by leaves
};

}  // namespace kindora::layout
