// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Definitions.h"

#include <algorithm>
#include <cmath>

#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

constexpr std::size_t kUsualUses = 3;  // of a variable

}  // namespace

void Definitions::attach(Index index, std::span<const Term> terms, double constant, Index subject) {
  Constraint& attached = constraints_[index];
  attached.terms.assign(terms.begin(), terms.end());
  attached.constant = constant;
  attached.subject = subject;
  for (Index term = 0; term < terms.size(); ++term) {
    std::vector<Use>& uses = variables_[terms[term].variable].uses;
    if (uses.capacity() == 0) uses.reserve(kUsualUses);
    attached.terms[term].use = static_cast<Index>(uses.size());
    uses.push_back({index, term});
  }
  if (subject == kNone) return;
  Variable& defined = variables_[terms[subject].variable];
  defined.definition = index;
  if (!defined.mayBeRestedOn) return;
  walkUp(terms, subject);
  markWalked(true);
}

void Definitions::detach(Index index) {
  Constraint& detached = constraints_[index];
  for (const Term& term : detached.terms) {
    Variable& variable = variables_[term.variable];
    const Use last = variable.uses.back();
    variable.uses[term.use] = last;
    constraints_[last.constraint].terms[last.term].use = term.use;
    variable.uses.pop_back();
    if (variable.uses.empty()) variable.mayBeRestedOn = false;
  }
  detached.terms.clear();
}

void Definitions::undefine(Index index) {
  Constraint& definition = constraints_[index];
  variables_[definition.terms[definition.subject].variable].definition = kNone;
  definition.subject = kNone;
}

void Definitions::merge(std::vector<Term>& terms) {
  beginWalk();
  for (const Term& term : terms) {
    if (visit(term.variable)) order_.push_back(term.variable);
    variables_[term.variable].amount += term.coefficient;
  }
  terms.clear();
  for (const Index variable : order_) {
    const double sum = variables_[variable].amount;
    if (std::abs(sum) <= kNearZero) continue;
    terms.push_back({.variable = variable, .coefficient = sum});
  }
}

// Looks from both ends at a time and stops when one side is through, since a long chain mostly lies
// on one side only.
bool Definitions::othersRestOn(Index variable, std::span<const Term> terms) {
  const std::uint32_t markAbove = ++mark_;
  const std::uint32_t markBelow = ++mark_;
  above_.clear();
  below_.assign(1, variable);
  variables_[variable].mark = markBelow;
  for (const Term& term : terms) {
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
      const Constraint* definition = definitionOf(above_.back());
      above_.pop_back();
      ++workAbove;
      if (definition == nullptr) continue;
      workAbove += definition->terms.size();
      for (Index term = 0; term < definition->terms.size(); ++term) {
        if (term == definition->subject) continue;
        look(definition->terms[term].variable, above_, markAbove, markBelow);
      }
    } else {
      const Variable& telling = variables_[below_.back()];
      below_.pop_back();
      workBelow += 1 + telling.uses.size();
      for (const Use use : telling.uses) {
        if (const Term* next = told(use)) look(next->variable, below_, markBelow, markAbove);
      }
    }
  }
  return meet;
}

Definitions::Expansion Definitions::expand(std::span<const Term> terms, Index except) {
  walkUp(terms, except);
  markWalked(true);
  for (Index term = 0; term < terms.size(); ++term) {
    if (term != except) variables_[terms[term].variable].amount += terms[term].coefficient;
  }
  Expansion result;
  for (auto place = order_.rbegin(); place != order_.rend(); ++place) {
    const double amount = variables_[*place].amount;
    const Constraint* definition = definitionOf(*place);
    if (definition == nullptr) {
      if (std::abs(amount) <= kNearZero) continue;
      result.leaves.push_back(*place);
      result.coefficients.push_back(amount);
      continue;
    }
    const double factor = amount / definition->terms[definition->subject].coefficient;
    result.constant += factor * definition->constant;
    for (Index term = 0; term < definition->terms.size(); ++term) {
      if (term == definition->subject) continue;
      const Term& input = definition->terms[term];
      variables_[input.variable].amount -= factor * input.coefficient;
    }
  }
  return result;
}

std::vector<Definitions::Movement> Definitions::movedBy(Index variable, double amount) {
  std::vector<Movement> moved;
  if (!variables_[variable].mayBeRestedOn) return moved;
  beginWalk();
  walkDown(variable);
  for (const Index reached : order_) {
    for (const Use use : variables_[reached].uses) {
      if (constraints_[use.constraint].subject == kNone) moved.push_back({use.constraint});
    }
  }
  if (moved.empty()) {
    markWalked(false);
    return moved;
  }
  const auto before = [](const Movement& left, const Movement& right) {
    return left.constraint < right.constraint;
  };
  const auto same = [](const Movement& left, const Movement& right) {
    return left.constraint == right.constraint;
  };
  std::sort(moved.begin(), moved.end(), before);
  moved.erase(std::unique(moved.begin(), moved.end(), same), moved.end());

  variables_[variable].amount = amount;
  for (auto place = order_.rbegin(); place != order_.rend(); ++place) {
    const Variable& moving = variables_[*place];
    for (const Use use : moving.uses) {
      const Term* next = told(use);
      if (next == nullptr) continue;
      const double coefficient = constraints_[use.constraint].terms[use.term].coefficient;
      variables_[next->variable].amount -= moving.amount * coefficient / next->coefficient;
    }
  }
  for (Movement& movement : moved) {
    for (const Term& term : constraints_[movement.constraint].terms) {
      const Variable& named = variables_[term.variable];
      if (named.mark == mark_) movement.amount += term.coefficient * named.amount;
    }
  }
  return moved;
}

std::span<const Definitions::Index> Definitions::toldBy(std::span<const Index> variables) {
  beginWalk();
  for (const Index variable : variables) walkDown(variable);
  return order_;
}

// The variable that the use helps to define, as the term of its definition; null if it does not.
const Definitions::Term* Definitions::told(Use use) const {
  const Constraint& user = constraints_[use.constraint];
  const bool isTold = user.subject != kNone && user.subject != use.term;
  return isTold ? &user.terms[user.subject] : nullptr;
}

void Definitions::beginWalk() {
  ++mark_;
  order_.clear();
}

bool Definitions::visit(Index variable) {
  Variable& visited = variables_[variable];
  if (visited.mark == mark_) return false;
  visited.mark = mark_;
  visited.amount = 0;
  return true;
}

// A new walk over the variables of the terms, but for one, and all by which they are told.
void Definitions::walkUp(std::span<const Term> terms, Index except) {
  beginWalk();
  for (Index first = 0; first < terms.size(); ++first) {
    if (first == except || !visit(terms[first].variable)) continue;
    path_.push_back({terms[first].variable});
    while (!path_.empty()) {
      Step& step = path_.back();
      const Constraint* definition = definitionOf(step.variable);
      if (definition == nullptr || step.next == definition->terms.size()) {
        order_.push_back(step.variable);
        path_.pop_back();
        continue;
      }
      const Index term = step.next++;
      const Index next = definition->terms[term].variable;
      if (term != definition->subject && visit(next)) path_.push_back({next});
    }
  }
}

// Continues a walk by the variable and all that are told by it.
void Definitions::walkDown(Index variable) {
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
    const Term* next = told(uses[step.next++]);
    if (next == nullptr || !visit(next->variable)) continue;
    // Most tell no other: their only use is their definition.
    if (variables_[next->variable].uses.size() == 1) {
      order_.push_back(next->variable);
    } else {
      path_.push_back({next->variable});
    }
  }
}

void Definitions::markWalked(bool mayBeRestedOn) {
  for (const Index variable : order_) variables_[variable].mayBeRestedOn = mayBeRestedOn;
}

}  // namespace kindora::layout
