// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The equalities that are followed in order: each defines one of its variables, its subject, by the
// others, and none leads back to itself. All other constraints rest on variables, and by the
// definitions of these on undefined ones, their leaves.
//
// Variables and constraints are known by the numbers that the solver gives them, from 0 on.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kindora::layout {

class Definitions final {
 public:
  using Index = std::uint32_t;
  static constexpr Index kNone = ~Index{0};

  struct Term {
    Index variable = kNone;
    Index use = 0;  ///< its place among the variable's uses, once it is part of a constraint
    double coefficient = 0;
  };
  /// Of any relation; the sum of the terms against the constant.
  struct Constraint {
    std::vector<Term> terms;
    double constant = 0;
    Index subject = kNone;  ///< the term whose variable it defines
  };
  /// A sum over undefined variables and a constant.
  struct Expansion {
    std::vector<Index> leaves;
    std::vector<double> coefficients;  ///< of the leaves
    double constant = 0;
  };
  /// By how much the sum of a constraint's terms moves.
  struct Movement {
    Index constraint = kNone;
    double amount = 0;
  };

  void addVariable() { variables_.emplace_back(); }
  /// A constraint that names the variable; none if there is none.
  [[nodiscard]] Index userOf(Index variable) const {
    const std::vector<Use>& uses = variables_[variable].uses;
    return uses.empty() ? kNone : uses.back().constraint;
  }
  [[nodiscard]] bool isDefined(Index variable) const {
    return variables_[variable].definition != kNone;
  }
  /// Null for an undefined variable.
  [[nodiscard]] const Constraint* definitionOf(Index variable) const {
    const Index definition = variables_[variable].definition;
    return definition == kNone ? nullptr : &constraints_[definition];
  }

  void addConstraint() { constraints_.emplace_back(); }
  [[nodiscard]] const Constraint& constraint(Index index) const { return constraints_[index]; }
  void setConstant(Index index, double constant) { constraints_[index].constant = constant; }
  /// The constraint consists of these from now on. The subject's variable, if there is one, must be
  /// undefined, and no other of the terms' rest on it.
  void attach(Index index, std::span<const Term> terms, double constant, Index subject);
  void detach(Index index);
  /// The definition becomes a constraint that defines nothing.
  void undefine(Index index);

  /// Leaves each variable once, where it came first; a sum of coefficients that is near 0 goes.
  void merge(std::vector<Term>& terms);
  /// Whether one of the terms' variables, but for the given one, is told by that one.
  [[nodiscard]] bool othersRestOn(Index variable, std::span<const Term> terms);
  /// What the terms but one are told by in the end, for something that rests on it from now on.
  [[nodiscard]] Expansion expand(std::span<const Term> terms, Index except = kNone);
  /// The constraints that define nothing and rest on the variable, and how they move when it moves
  /// by the amount.
  [[nodiscard]] std::vector<Movement> movedBy(Index variable, double amount);
  /// The variables and all that are told by them; each behind those that it tells, so that values
  /// are found from the back. As long as nothing else is asked.
  [[nodiscard]] std::span<const Index> toldBy(std::span<const Index> variables);

 private:
  // A constraint that names a variable, and as which of its terms.
  struct Use {
    Index constraint = kNone;
    Index term = 0;
  };
  struct Variable {
    std::vector<Use> uses;
    Index definition = kNone;  // the constraint that defines it
    std::uint32_t mark = 0;
    bool mayBeRestedOn = false;  // by a constraint that defines nothing; never wrongly false
    double amount = 0;           // scratch of a walk
  };
  // A place in a walk.
  struct Step {
    Index variable = kNone;
    Index next = 0;
  };

  [[nodiscard]] const Term* told(Use use) const;
  void beginWalk();
  [[nodiscard]] bool visit(Index variable);
  void walkUp(std::span<const Term> terms, Index except);
  void walkDown(Index variable);
  void markWalked(bool mayBeRestedOn);

  std::vector<Variable> variables_;
  std::vector<Constraint> constraints_;
  std::uint32_t mark_ = 0;

  // Scratch, kept for its room.
  std::vector<Step> path_;
  std::vector<Index> order_;  // of the last walk: each variable behind those it was reached for
  std::vector<Index> above_;
  std::vector<Index> below_;
};

}  // namespace kindora::layout
