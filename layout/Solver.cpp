// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Solver.h"

#include <algorithm>
#include <cmath>

namespace kindora::layout {
namespace {

constexpr double kNearZero = 1e-8;
constexpr std::size_t kUsualUses = 3;  // of a variable

double signOf(Relation relation) { return relation == Relation::lessThanOrEqual ? -1 : 1; }

// Whether 0 stands in the relation to the constant.
bool holdsOfZero(Relation relation, double constant) {
  switch (relation) {
    case Relation::lessThanOrEqual:
      return constant >= -kNearZero;
    case Relation::greaterThanOrEqual:
      return constant <= kNearZero;
    default:
      return std::abs(constant) <= kNearZero;
  }
}

}  // namespace

Variable Solver::makeVariable() {
  if (freeVariables_.empty()) {
    freeVariables_.push_back(static_cast<Index>(variables_.size()));
    variables_.emplace_back();
    values_.emplace_back();
  }
  const Index index = freeVariables_.back();
  freeVariables_.pop_back();
  variables_[index].isHeld = true;
  return {index, values_[index].generation};
}

Outcome Solver::removeVariable(Variable variable) {
  if (!isKnown(variable)) return Outcome::unknownVariable;
  VariableRecord& removed = variables_[variable.index];
  while (!removed.uses.empty()) {
    const Index constraint = removed.uses.back().constraint;
    static_cast<void>(remove({constraint, constraints_[constraint].generation}));
  }
  removed.isHeld = false;
  removed.mayReachTableau = false;
  ++values_[variable.index].generation;
  values_[variable.index].value = 0;
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
  added.constant = constraint.constant;
  added.terms.assign(merged_.begin(), merged_.end());
  if (merged_.empty()) {
    added.kind = Kind::empty;
  } else if (subject != kNone) {
    define(index, subject);
  } else {
    std::optional<double> strength;
    if (!isRequired) strength = std::max(constraint.strength, 0.0);
    if (!enterTableau(index, strength)) {
      freeConstraint(index);
      return {Outcome::unsatisfiable, {}};
    }
  }
  attach(index);
  return {Outcome::done, {index, added.generation}};
}

Outcome Solver::remove(ConstraintId id) {
  if (!isKnown(id)) return Outcome::unknownConstraint;
  const Kind kind = constraints_[id.index].kind;
  if (kind == Kind::definition) undefine(id.index);
  if (kind == Kind::tableau) leaveTableau(id.index);
  detach(id.index);
  freeConstraint(id.index);
  return Outcome::done;
}

Outcome Solver::setConstant(ConstraintId id, double constant) {
  if (!isKnown(id)) return Outcome::unknownConstraint;
  if (!std::isfinite(constant)) return Outcome::notFinite;
  ConstraintRecord& changed = constraints_[id.index];
  const double change = constant - changed.constant;
  if (change == 0) return Outcome::done;
  if (changed.kind == Kind::empty) {
    if (changed.isRequired && !holdsOfZero(changed.relation, constant)) {
      return Outcome::unsatisfiable;
    }
  } else if (changed.kind == Kind::tableau) {
    const Tableau::Shift shift{changed.markers.marker, -signOf(changed.relation) * change};
    if (!tableau_.shift({&shift, 1})) return Outcome::unsatisfiable;
  } else {
    const HeldTerm& subject = changed.terms[changed.subject];
    if (variables_[subject.variable].mayReachTableau) {
      const std::vector<Index> reached = reachedFrom(subject.variable);
      const std::vector<Tableau::Shift> shifts =
          influence(subject.variable, change / subject.coefficient, reached);
      if (!tableau_.shift(shifts)) return Outcome::unsatisfiable;
    }
    markDirty(subject.variable);
  }
  changed.constant = constant;
  return Outcome::done;
}

void Solver::update() {
  for (const Symbol symbol : tableau_.changed()) {
    const Index variable = bySymbol_[static_cast<std::size_t>(symbol)];
    if (variables_[variable].symbol == symbol) markDirty(variable);
  }
  tableau_.clearChanged();
  beginWalk();
  for (const Index variable : dirty_) {
    variables_[variable].isDirty = false;
    walkDown(variable);
  }
  dirty_.clear();
  for (auto variable = order_.rbegin(); variable != order_.rend(); ++variable) {
    const VariableRecord& changed = variables_[*variable];
    double& value = values_[*variable].value;
    if (changed.definition != kNone) {
      value = evaluate(constraints_[changed.definition]);
    } else {
      value = changed.symbol != kNoSymbol ? tableau_.value(changed.symbol) : 0;
    }
  }
}

double Solver::evaluate(const ConstraintRecord& definition) const {
  double sum = definition.constant;
  for (Index term = 0; term < definition.terms.size(); ++term) {
    if (term == definition.subject) continue;
    sum -= definition.terms[term].coefficient * values_[definition.terms[term].variable].value;
  }
  return sum / definition.terms[definition.subject].coefficient;
}

bool Solver::isKnown(Variable variable) const {
  return variable.index < variables_.size() && variables_[variable.index].isHeld &&
         values_[variable.index].generation == variable.generation;
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
  beginWalk();
  for (const Term& term : constraint.terms) {
    if (!isKnown(term.variable)) return Outcome::unknownVariable;
    if (!std::isfinite(term.coefficient)) return Outcome::notFinite;
    const Index variable = term.variable.index;
    if (visit(variable)) merged_.push_back({variable});
    variables_[variable].amount += term.coefficient;
  }
  for (HeldTerm& term : merged_) term.coefficient = variables_[term.variable].amount;
  std::erase_if(merged_,
                [](const HeldTerm& term) { return std::abs(term.coefficient) <= kNearZero; });
  const bool isFinite = std::all_of(merged_.begin(), merged_.end(), [](const HeldTerm& term) {
    return std::isfinite(term.coefficient);
  });
  return isFinite ? Outcome::done : Outcome::notFinite;
}

Solver::Index Solver::takeConstraint() {
  if (freeConstraints_.empty()) {
    freeConstraints_.push_back(static_cast<Index>(constraints_.size()));
    constraints_.emplace_back();
  }
  const Index index = freeConstraints_.back();
  freeConstraints_.pop_back();
  return index;
}

void Solver::freeConstraint(Index index) {
  ConstraintRecord& freed = constraints_[index];
  freed.kind = Kind::unused;
  freed.terms.clear();
  ++freed.generation;
  freeConstraints_.push_back(index);
}

void Solver::attach(Index index) {
  std::vector<HeldTerm>& terms = constraints_[index].terms;
  for (Index term = 0; term < terms.size(); ++term) {
    std::vector<Use>& uses = variables_[terms[term].variable].uses;
    if (uses.capacity() == 0) uses.reserve(kUsualUses);
    terms[term].use = static_cast<Index>(uses.size());
    uses.push_back({index, term});
  }
}

void Solver::detach(Index index) {
  for (const HeldTerm& term : constraints_[index].terms) {
    std::vector<Use>& uses = variables_[term.variable].uses;
    const Use last = uses.back();
    uses[term.use] = last;
    constraints_[last.constraint].terms[last.term].use = term.use;
    uses.pop_back();
  }
}

// The term of merged_ whose variable the equality can define: one on which neither the tableau nor
// the equality's other variables rest. None if there is no such term.
Solver::Index Solver::definableTerm() {
  Index fresh = kNone;
  for (Index term = 0; term < merged_.size(); ++term) {
    if (!variables_[merged_[term].variable].uses.empty()) continue;
    if (fresh == kNone ||
        std::abs(merged_[term].coefficient) > std::abs(merged_[fresh].coefficient)) {
      fresh = term;
    }
  }
  if (fresh != kNone) return fresh;
  for (Index term = 0; term < merged_.size(); ++term) {
    const VariableRecord& candidate = variables_[merged_[term].variable];
    if (candidate.definition == kNone && candidate.symbol == kNoSymbol &&
        !othersRestOn(merged_[term].variable)) {
      return term;
    }
  }
  return kNone;
}

// Whether another variable of merged_ is told by the given one. Looks from both ends at a time and
// stops when one side is through, since a long chain mostly lies on one side only.
bool Solver::othersRestOn(Index variable) {
  const std::uint32_t markAbove = ++mark_;
  const std::uint32_t markBelow = ++mark_;
  above_.clear();
  below_.assign(1, variable);
  variables_[variable].mark = markBelow;
  for (const HeldTerm& term : merged_) {
    if (term.variable == variable) continue;
    variables_[term.variable].mark = markAbove;
    above_.push_back(term.variable);
  }
  bool meet = false;
  const auto look = [this, &meet](Index next, std::vector<Index>& side, std::uint32_t own,
                                  std::uint32_t opposite) {
    std::uint32_t& mark = variables_[next].mark;
    meet = meet || mark == opposite;
    if (mark == own || mark == opposite) return;
    mark = own;
    side.push_back(next);
  };
  std::size_t workAbove = 0;
  std::size_t workBelow = 0;
  while (!meet && !above_.empty() && !below_.empty()) {
    if (workAbove <= workBelow) {
      const VariableRecord& told = variables_[above_.back()];
      above_.pop_back();
      ++workAbove;
      if (told.definition == kNone) continue;
      const ConstraintRecord& definition = constraints_[told.definition];
      workAbove += definition.terms.size();
      for (Index term = 0; term < definition.terms.size(); ++term) {
        if (term == definition.subject) continue;
        look(definition.terms[term].variable, above_, markAbove, markBelow);
      }
    } else {
      const VariableRecord& telling = variables_[below_.back()];
      below_.pop_back();
      workBelow += 1 + telling.uses.size();
      for (const Use& use : telling.uses) {
        const ConstraintRecord& user = constraints_[use.constraint];
        if (user.kind != Kind::definition || user.subject == use.term) continue;
        look(user.terms[user.subject].variable, below_, markBelow, markAbove);
      }
    }
  }
  return meet;
}

void Solver::define(Index index, Index subject) {
  ConstraintRecord& definition = constraints_[index];
  definition.kind = Kind::definition;
  definition.subject = subject;
  VariableRecord& defined = variables_[definition.terms[subject].variable];
  defined.definition = index;
  if (defined.mayReachTableau) {
    walkUp(definition.terms, subject);
    markReaching();
  }
  markDirty(definition.terms[subject].variable);
}

void Solver::undefine(Index index) {
  const HeldTerm subject = constraints_[index].terms[constraints_[index].subject];
  if (variables_[subject.variable].mayReachTableau) {
    const std::vector<Index> reached = reachedFrom(subject.variable);
    if (!reached.empty()) {
      const double pull = 1 / subject.coefficient;
      promote(index, reached, influence(subject.variable, pull, reached));
      leaveTableau(index);
      return;
    }
  }
  variables_[subject.variable].definition = kNone;
  markDirty(subject.variable);
}

bool Solver::enterTableau(Index index, std::optional<double> strength) {
  ConstraintRecord& entering = constraints_[index];
  Expansion sum = expand(entering.terms, kNone);
  markReaching();
  const double sign = signOf(entering.relation);
  for (std::size_t i = 0; i < sum.leaves.size(); ++i) {
    hold(sum.leaves[i]);
    sum.cells[i] = {variables_[sum.leaves[i]].symbol, sign * sum.cells[i].coefficient};
  }
  const double constant = sign * (sum.constant - entering.constant);
  const auto markers =
      tableau_.add(sum.cells, constant, entering.relation == Relation::equal, strength);
  if (!markers) {
    for (const Index leaf : sum.leaves) release(leaf);
    return false;
  }
  entering.kind = Kind::tableau;
  entering.markers = *markers;
  entering.leaves = std::move(sum.leaves);
  return true;
}

void Solver::leaveTableau(Index index) {
  ConstraintRecord& leaving = constraints_[index];
  tableau_.remove(leaving.markers);
  for (const Index leaf : leaving.leaves) release(leaf);
  leaving.leaves.clear();
}

// Moves a definition on which the tableau rests into it, so that it can be removed there.
void Solver::promote(Index index, std::span<const Index> reached,
                     std::span<const Tableau::Shift> shifts) {
  ConstraintRecord& moved = constraints_[index];
  const HeldTerm subject = moved.terms[moved.subject];
  Expansion sum = expand(moved.terms, moved.subject);
  for (std::size_t i = 0; i < sum.leaves.size(); ++i) {
    hold(sum.leaves[i]);
    sum.cells[i] = {variables_[sum.leaves[i]].symbol,
                    -sum.cells[i].coefficient / subject.coefficient};
  }
  hold(subject.variable);
  moved.markers = tableau_.adopt(variables_[subject.variable].symbol, sum.cells,
                                 (moved.constant - sum.constant) / subject.coefficient,
                                 1 / subject.coefficient, shifts);
  moved.kind = Kind::tableau;
  moved.leaves = std::move(sum.leaves);
  moved.leaves.push_back(subject.variable);
  variables_[subject.variable].definition = kNone;
  // What rested on the variable's definition rests on the variable now.
  for (const Index other : reached) {
    ConstraintRecord& resting = constraints_[other];
    Expansion now = expand(resting.terms, kNone);
    for (const Index leaf : now.leaves) hold(leaf);
    for (const Index leaf : resting.leaves) release(leaf);
    resting.leaves = std::move(now.leaves);
  }
}

void Solver::beginWalk() {
  ++mark_;
  order_.clear();
}

bool Solver::visit(Index variable) {
  VariableRecord& visited = variables_[variable];
  if (visited.mark == mark_) return false;
  visited.mark = mark_;
  visited.amount = 0;
  return true;
}

// A new walk over the variables of the terms, but for one, and all by which they are told.
void Solver::walkUp(std::span<const HeldTerm> terms, Index except) {
  beginWalk();
  for (Index first = 0; first < terms.size(); ++first) {
    if (first == except || !visit(terms[first].variable)) continue;
    path_.push_back({terms[first].variable});
    while (!path_.empty()) {
      Step& step = path_.back();
      const Index told = variables_[step.variable].definition;
      if (told == kNone || step.next == constraints_[told].terms.size()) {
        order_.push_back(step.variable);
        path_.pop_back();
        continue;
      }
      const Index term = step.next++;
      const Index next = constraints_[told].terms[term].variable;
      if (term != constraints_[told].subject && visit(next)) path_.push_back({next});
    }
  }
}

// Continues a walk by the variable and all that are told by it.
void Solver::walkDown(Index variable) {
  if (!visit(variable)) return;
  path_.push_back({variable});
  while (!path_.empty()) {
    Step& step = path_.back();
    const std::vector<Use>& uses = variables_[step.variable].uses;
    if (step.next == uses.size()) {
      order_.push_back(step.variable);
      path_.pop_back();
      continue;
    }
    const Use use = uses[step.next++];
    const ConstraintRecord& user = constraints_[use.constraint];
    if (user.kind != Kind::definition || user.subject == use.term) continue;
    const Index next = user.terms[user.subject].variable;
    if (!visit(next)) continue;
    // Most tell no other: their only use is their definition.
    if (variables_[next].uses.size() == 1) {
      order_.push_back(next);
    } else {
      path_.push_back({next});
    }
  }
}

void Solver::markReaching() {
  for (const Index variable : order_) variables_[variable].mayReachTableau = true;
}

Solver::Expansion Solver::expand(std::span<const HeldTerm> terms, Index except) {
  walkUp(terms, except);
  for (Index term = 0; term < terms.size(); ++term) {
    if (term != except) variables_[terms[term].variable].amount += terms[term].coefficient;
  }
  Expansion result;
  for (auto place = order_.rbegin(); place != order_.rend(); ++place) {
    const VariableRecord& variable = variables_[*place];
    if (variable.definition == kNone) {
      if (std::abs(variable.amount) <= kNearZero) continue;
      result.leaves.push_back(*place);
      result.cells.push_back({kNoSymbol, variable.amount});
      continue;
    }
    const ConstraintRecord& definition = constraints_[variable.definition];
    const double factor = variable.amount / definition.terms[definition.subject].coefficient;
    result.constant += factor * definition.constant;
    for (Index term = 0; term < definition.terms.size(); ++term) {
      if (term == definition.subject) continue;
      const HeldTerm& input = definition.terms[term];
      variables_[input.variable].amount -= factor * input.coefficient;
    }
  }
  return result;
}

// The constraints of the tableau that rest on the variable; a new walk down from it.
std::vector<Solver::Index> Solver::reachedFrom(Index variable) {
  beginWalk();
  walkDown(variable);
  std::vector<Index> reached;
  for (const Index told : order_) {
    for (const Use& use : variables_[told].uses) {
      if (constraints_[use.constraint].kind == Kind::tableau) reached.push_back(use.constraint);
    }
  }
  std::sort(reached.begin(), reached.end());
  reached.erase(std::unique(reached.begin(), reached.end()), reached.end());
  if (reached.empty()) {
    for (const Index told : order_) variables_[told].mayReachTableau = false;
  }
  return reached;
}

// By how much the expressions of the reached constraints move when the variable moves by the
// amount. Follows reachedFrom, whose walk it uses.
std::vector<Tableau::Shift> Solver::influence(Index variable, double amount,
                                              std::span<const Index> reached) {
  variables_[variable].amount = amount;
  for (auto place = order_.rbegin(); place != order_.rend(); ++place) {
    const VariableRecord& moved = variables_[*place];
    for (const Use& use : moved.uses) {
      const ConstraintRecord& user = constraints_[use.constraint];
      if (user.kind != Kind::definition || user.subject == use.term) continue;
      const HeldTerm& told = user.terms[user.subject];
      variables_[told.variable].amount -=
          moved.amount * user.terms[use.term].coefficient / told.coefficient;
    }
  }
  std::vector<Tableau::Shift> result;
  for (const Index index : reached) {
    const ConstraintRecord& constraint = constraints_[index];
    double moves = 0;
    for (const HeldTerm& term : constraint.terms) {
      const VariableRecord& moved = variables_[term.variable];
      if (moved.mark == mark_) moves += term.coefficient * moved.amount;
    }
    result.push_back({constraint.markers.marker, signOf(constraint.relation) * moves});
  }
  return result;
}

void Solver::hold(Index leaf) {
  VariableRecord& held = variables_[leaf];
  if (held.leafCount++ > 0) return;
  held.symbol = tableau_.makeExternal();
  const auto symbol = static_cast<std::size_t>(held.symbol);
  if (symbol >= bySymbol_.size()) bySymbol_.resize(symbol + 1, 0);
  bySymbol_[symbol] = leaf;
}

void Solver::release(Index leaf) {
  VariableRecord& released = variables_[leaf];
  if (--released.leafCount > 0) return;
  tableau_.releaseExternal(released.symbol);
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
