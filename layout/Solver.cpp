// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Solver.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

double signOf(Relation relation) { return relation == Relation::lessThanOrEqual ? -1 : 1; }

// Brings numbers of which this is the largest to about 1, without rounding.
double scaleFor(double largest) { return largest > 0 ? std::exp2(-std::ilogb(largest)) : 1; }

double largestOf(const std::vector<double>& numbers) {
  double largest = 0;
  for (const double number : numbers) largest = std::max(largest, std::abs(number));
  return largest;
}

// Whether 0 stands in the relation to the constant.
bool holdsOfZero(Relation relation, double constant) {
  switch (relation) {
    case Relation::lessThanOrEqual:
      return constant >= -kTolerance;
    case Relation::greaterThanOrEqual:
      return constant <= kTolerance;
    default:
      return std::abs(constant) <= kTolerance;
  }
}

}  // namespace

Variable Solver::makeVariable() {
  if (freeVariables_.empty()) {
    freeVariables_.push_back(static_cast<Index>(variables_.size()));
    variables_.emplace_back();
    definitions_.addVariable();
  }
  const Index index = freeVariables_.back();
  freeVariables_.pop_back();
  variables_[index].isHeld = true;
  return {index, variables_[index].generation};
}

Outcome Solver::removeVariable(Variable variable) {
  if (!isKnown(variable)) return Outcome::unknownVariable;
  for (Index user = definitions_.userOf(variable.index); user != kNone;
       user = definitions_.userOf(variable.index)) {
    static_cast<void>(remove({user, constraints_[user].generation}));
  }
  VariableRecord& removed = variables_[variable.index];
  removed.isHeld = false;
  removed.value = 0;
  ++removed.generation;
  freeVariables_.push_back(variable.index);
  return Outcome::done;
}

Solver::Added Solver::add(const Constraint& constraint) {
  const Outcome outcome = merge(constraint);
  if (outcome != Outcome::done) return {outcome, {}};
  const bool isRequired = constraint.strength >= kRequired;
  if (merged_.empty() && isRequired && !holdsOfZero(constraint.relation, constraint.constant)) {
    return {Outcome::unsatisfiable, {}};
  }
  Index subject = kNone;
  if (isRequired && constraint.relation == Relation::equal) subject = definableTerm();

  const Index index = takeConstraint();
  ConstraintRecord& added = constraints_[index];
  added.relation = constraint.relation;
  added.isRequired = isRequired;
  added.kind = Kind::empty;
  if (subject != kNone) {
    added.kind = Kind::definition;
  } else if (!merged_.empty()) {
    std::optional<double> strength;
    if (!isRequired) strength = std::max(constraint.strength, 0.0);
    if (!enterTableau(index, constraint.constant, strength)) {
      freeConstraint(index);
      return {Outcome::unsatisfiable, {}};
    }
  }
  definitions_.attach(index, merged_, constraint.constant, subject);
  if (subject != kNone) markDirty(merged_[subject].variable);
  return {Outcome::done, {index, added.generation}};
}

Outcome Solver::remove(ConstraintId id) {
  if (!isKnown(id)) return Outcome::unknownConstraint;
  const Kind kind = constraints_[id.index].kind;
  if (kind == Kind::definition) undefine(id.index);
  if (kind == Kind::tableau) leaveTableau(id.index);
  definitions_.detach(id.index);
  freeConstraint(id.index);
  return Outcome::done;
}

Outcome Solver::setConstant(ConstraintId id, double constant) {
  if (!isKnown(id)) return Outcome::unknownConstraint;
  if (!std::isfinite(constant)) return Outcome::notFinite;
  const ConstraintRecord& changed = constraints_[id.index];
  const Definitions::Constraint& sum = definitions_.constraint(id.index);
  const double change = constant - sum.constant;
  if (change == 0) return Outcome::done;
  if (changed.kind == Kind::empty) {
    if (changed.isRequired && !holdsOfZero(changed.relation, constant)) {
      return Outcome::unsatisfiable;
    }
  } else if (changed.kind == Kind::tableau) {
    const Tableau::Shift shift{changed.slacks.surplus, -changed.factor * change};
    if (!tableau_.shift({&shift, 1})) return Outcome::unsatisfiable;
  } else {
    const Definitions::Term& subject = sum.terms[sum.subject];
    const std::vector<Definitions::Movement> moved =
        definitions_.movedBy(subject.variable, change / subject.coefficient);
    if (!moved.empty() && !tableau_.shift(shiftsOf(moved))) return Outcome::unsatisfiable;
    markDirty(subject.variable);
  }
  definitions_.setConstant(id.index, constant);
  return Outcome::done;
}

void Solver::update() {
  for (const Symbol symbol : tableau_.changed()) {
    const Index variable = bySymbol_[static_cast<std::size_t>(symbol)];
    if (variables_[variable].symbol == symbol) markDirty(variable);
  }
  tableau_.clearChanged();
  const std::span<const Index> told = definitions_.toldBy(dirty_);
  for (const Index variable : dirty_) variables_[variable].isDirty = false;
  dirty_.clear();
  for (auto variable = told.rbegin(); variable != told.rend(); ++variable) {
    double& value = variables_[*variable].value;
    if (const Definitions::Constraint* definition = definitions_.definitionOf(*variable)) {
      value = evaluate(*definition);
    } else {
      const Symbol symbol = variables_[*variable].symbol;
      value = symbol != kNoSymbol ? tableau_.value(symbol) : 0;
    }
  }
}

double Solver::evaluate(const Definitions::Constraint& definition) const {
  double sum = definition.constant;
  for (Index term = 0; term < definition.terms.size(); ++term) {
    if (term == definition.subject) continue;
    sum -= definition.terms[term].coefficient * variables_[definition.terms[term].variable].value;
  }
  return sum / definition.terms[definition.subject].coefficient;
}

bool Solver::isKnown(ConstraintId id) const {
  return id.index < constraints_.size() && constraints_[id.index].kind != Kind::unused &&
         constraints_[id.index].generation == id.generation;
}

// Leaves in merged_ each variable once.
Outcome Solver::merge(const Constraint& constraint) {
  merged_.clear();
  if (!std::isfinite(constraint.constant) || !std::isfinite(constraint.strength)) {
    return Outcome::notFinite;
  }
  for (const Term& term : constraint.terms) {
    if (!isKnown(term.variable)) return Outcome::unknownVariable;
    if (!std::isfinite(term.coefficient)) return Outcome::notFinite;
    merged_.push_back({.variable = term.variable.index, .coefficient = term.coefficient});
  }
  definitions_.merge(merged_);
  const bool isFinite =
      std::all_of(merged_.begin(), merged_.end(),
                  [](const Definitions::Term& term) { return std::isfinite(term.coefficient); });
  return isFinite ? Outcome::done : Outcome::notFinite;
}

Solver::Index Solver::takeConstraint() {
  if (freeConstraints_.empty()) {
    freeConstraints_.push_back(static_cast<Index>(constraints_.size()));
    constraints_.emplace_back();
    definitions_.addConstraint();
  }
  const Index index = freeConstraints_.back();
  freeConstraints_.pop_back();
  return index;
}

void Solver::freeConstraint(Index index) {
  ConstraintRecord& freed = constraints_[index];
  freed.kind = Kind::unused;
  ++freed.generation;
  freeConstraints_.push_back(index);
}

// The term of merged_ whose variable the equality can define: one on which neither the tableau nor
// the equality's other variables rest, and by whose coefficient one may well divide. None if there
// is no such term.
Solver::Index Solver::definableTerm() {
  double largest = 0;
  for (const Definitions::Term& term : merged_) {
    largest = std::max(largest, std::abs(term.coefficient));
  }
  const auto isLarge = [&](Index term) {
    return std::abs(merged_[term].coefficient) >= kDefinablePivot * largest;
  };
  Index fresh = kNone;
  for (Index term = 0; term < merged_.size(); ++term) {
    if (!isLarge(term) || definitions_.userOf(merged_[term].variable) != kNone) continue;
    if (fresh == kNone ||
        std::abs(merged_[term].coefficient) > std::abs(merged_[fresh].coefficient)) {
      fresh = term;
    }
  }
  if (fresh != kNone) return fresh;
  for (Index term = 0; term < merged_.size(); ++term) {
    const Index candidate = merged_[term].variable;
    if (isLarge(term) && !definitions_.isDefined(candidate) &&
        variables_[candidate].symbol == kNoSymbol &&
        !definitions_.othersRestOn(candidate, merged_)) {
      return term;
    }
  }
  return kNone;
}

void Solver::undefine(Index index) {
  const Definitions::Constraint& definition = definitions_.constraint(index);
  const Definitions::Term subject = definition.terms[definition.subject];
  const std::vector<Definitions::Movement> moved = definitions_.movedBy(subject.variable, 1);
  if (moved.empty()) {
    definitions_.undefine(index);
    markDirty(subject.variable);
  } else {
    promote(index, moved);
    leaveTableau(index);
  }
}

bool Solver::enterTableau(Index index, double constant, std::optional<double> strength) {
  ConstraintRecord& entering = constraints_[index];
  Definitions::Expansion sum = definitions_.expand(merged_);
  // So that all constraints of the tableau are alike in size, however they were written.
  const double scale = scaleFor(largestOf(sum.coefficients));
  entering.factor = signOf(entering.relation) * scale;
  hold(sum);
  tell(sum, entering.factor);
  const auto slacks = tableau_.add(cells_, entering.factor * (sum.constant - constant),
                                   entering.relation == Relation::equal, scale, strength);
  if (!slacks) {
    for (const Index leaf : sum.leaves) release(leaf);
    return false;
  }
  entering.kind = Kind::tableau;
  entering.slacks = *slacks;
  entering.leaves = std::move(sum.leaves);
  return true;
}

void Solver::leaveTableau(Index index) {
  ConstraintRecord& leaving = constraints_[index];
  tableau_.remove(leaving.slacks);
  for (const Index leaf : leaving.leaves) release(leaf);
  leaving.leaves.clear();
}

// Moves a definition on which the tableau rests into it, so that it can be removed there.
void Solver::promote(Index index, std::span<const Definitions::Movement> moved) {
  ConstraintRecord& promoted = constraints_[index];
  const Definitions::Constraint& definition = definitions_.constraint(index);
  const Definitions::Term subject = definition.terms[definition.subject];
  Definitions::Expansion sum = definitions_.expand(definition.terms, definition.subject);
  hold(sum);
  hold(subject.variable);
  // Such that a unit of the surplus moves the variable by 1, and what rests on it as told.
  promoted.factor = 1 / subject.coefficient;
  tell(sum, promoted.factor);
  cells_.push_back({variables_[subject.variable].symbol, 1});
  promoted.slacks =
      tableau_.adopt(variables_[subject.variable].symbol, cells_,
                     promoted.factor * (sum.constant - definition.constant), shiftsOf(moved));
  promoted.kind = Kind::tableau;
  promoted.leaves = std::move(sum.leaves);
  promoted.leaves.push_back(subject.variable);
  definitions_.undefine(index);
  // What rested on the variable's definition rests on the variable now.
  for (const Definitions::Movement& movement : moved) {
    const Definitions::Constraint& told = definitions_.constraint(movement.constraint);
    Definitions::Expansion now = definitions_.expand(told.terms);
    hold(now);
    ConstraintRecord& resting = constraints_[movement.constraint];
    for (const Index leaf : resting.leaves) release(leaf);
    tell(now, resting.factor);
    tableau_.restate(resting.slacks.surplus, cells_,
                     resting.factor * (now.constant - told.constant));
    resting.leaves = std::move(now.leaves);
  }
}

std::vector<Tableau::Shift> Solver::shiftsOf(std::span<const Definitions::Movement> moved) const {
  std::vector<Tableau::Shift> shifts;
  shifts.reserve(moved.size());
  for (const Definitions::Movement& movement : moved) {
    const ConstraintRecord& shifted = constraints_[movement.constraint];
    shifts.push_back({shifted.slacks.surplus, shifted.factor * movement.amount});
  }
  return shifts;
}

void Solver::hold(const Definitions::Expansion& sum) {
  for (const Index leaf : sum.leaves) hold(leaf);
}

// Leaves the sum, whose leaves are held, in cells_.
void Solver::tell(const Definitions::Expansion& sum, double factor) {
  cells_.clear();
  for (std::size_t i = 0; i < sum.leaves.size(); ++i) {
    cells_.push_back({variables_[sum.leaves[i]].symbol, factor * sum.coefficients[i]});
  }
}

void Solver::hold(Index leaf) {
  VariableRecord& held = variables_[leaf];
  if (held.restCount++ > 0) return;
  held.symbol = tableau_.makeFree();
  const auto symbol = static_cast<std::size_t>(held.symbol);
  if (symbol >= bySymbol_.size()) bySymbol_.resize(symbol + 1, 0);
  bySymbol_[symbol] = leaf;
}

void Solver::release(Index leaf) {
  VariableRecord& released = variables_[leaf];
  if (--released.restCount > 0) return;
  tableau_.releaseFree(released.symbol);
  released.symbol = kNoSymbol;
  markDirty(leaf);
}

void Solver::markDirty(Index variable) {
  VariableRecord& marked = variables_[variable];
  if (marked.isDirty) return;
  marked.isDirty = true;
  dirty_.push_back(variable);
}

}  // namespace kindora::layout
