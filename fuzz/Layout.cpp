// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Any bytes as calls of a solver: variables and constraints come, go and change. After each call
// what is required holds, a refusal has changed nothing, and a new solver agrees on what can be
// met; after every few and at the end it agrees on how well the rest is met, too.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "fuzz/Fuzz.h"
#include "layout/Solver.h"

namespace kindora::layout {
namespace {

constexpr std::size_t kVariables = 12;
constexpr std::size_t kConstraints = 100;
constexpr std::size_t kComparedEach = 8;  // call
constexpr std::array kCoefficients{1.0, -1.0, 2.0, -2.0, 0.5, -0.5, 3.0, 0.0};
constexpr std::array kStrengths{kRequired, kRequired, kRequired, kCompression,
                                kHugging,  600.0,     0.0,       -1.0};

// Hands out the input byte by byte, and zeros behind its end.
class Bytes {
 public:
  explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
  [[nodiscard]] bool isEmpty() const { return bytes_.empty(); }
  std::size_t below(std::size_t count) {
    if (bytes_.empty()) return 0;
    const std::size_t byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte % count;
  }
  double constant() { return (static_cast<double>(below(256)) - 128) / 2; }

 private:
  std::span<const std::uint8_t> bytes_;
};

struct Held {
  ConstraintId id;
  Constraint constraint;
};

bool mentions(const Constraint& constraint, Variable variable) {
  double sum = 0;
  for (const Term& term : constraint.terms) {
    if (term.variable == variable) sum += term.coefficient;
  }
  return sum != 0;
}

// Of violations of one strength.
struct Sum {
  double amount = 0;
  double size = 1;  // of the numbers that go into it
};
using Sums = std::map<double, Sum, std::greater<>>;

void addViolation(Sums& sums, const Solver& solver, const Constraint& constraint) {
  double excess = -constraint.constant;
  double size = std::abs(excess);
  for (const Term& term : constraint.terms) {
    const double product = term.coefficient * solver.value(term.variable);
    excess += product;
    size += std::abs(product);
  }
  if (constraint.relation == Relation::lessThanOrEqual) excess = std::max(0.0, excess);
  if (constraint.relation == Relation::greaterThanOrEqual) excess = std::min(0.0, excess);
  Sum& sum = sums[std::max(0.0, constraint.strength)];
  sum.amount += std::abs(excess);
  sum.size += size;
}

// What a solver that has seen nothing else makes of the constraints; none if it does not take all.
std::optional<Sums> anew(std::vector<Constraint> constraints) {
  Solver solver;
  std::map<std::uint32_t, Variable> variables;
  for (Constraint& constraint : constraints) {
    for (Term& term : constraint.terms) {
      const auto [known, isNew] = variables.try_emplace(term.variable.index);
      if (isNew) known->second = solver.makeVariable();
      term.variable = known->second;
    }
    if (solver.add(constraint).outcome != Outcome::done) return std::nullopt;
  }
  solver.update();
  Sums sums;
  for (const Constraint& constraint : constraints) addViolation(sums, solver, constraint);
  return sums;
}

class Play {
 public:
  explicit Play(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
    for (std::size_t i = 0; i < kVariables; ++i) variables_.push_back(solver_.makeVariable());
  }

  void run() {
    for (std::size_t call = 1; !bytes_.isEmpty(); ++call) {
      const std::vector<double> before = values();
      if (step() != Outcome::done) requireUnchanged(before);
      requireHeld();
      if (call % kComparedEach == 0) requireBest();
    }
    requireBest();
  }

 private:
  Outcome step() {
    // Rarely what takes much away, so that much is held.
    const std::size_t kind = bytes_.below(32);
    if (kind == 0) return removeVariable();
    if (kind < 4) return removeConstraint();
    if (kind < 12) return changeConstant();
    return add();
  }

  Outcome removeVariable() {
    Variable& variable = variables_[bytes_.below(kVariables)];
    require(solver_.removeVariable(variable) == Outcome::done, "a variable can be removed");
    require(solver_.removeVariable(variable) == Outcome::unknownVariable, "once");
    std::erase_if(held_, [&](const Held& held) {
      if (!mentions(held.constraint, variable)) return false;
      require(solver_.remove(held.id) == Outcome::unknownConstraint, "with its constraints");
      return true;
    });
    // What named it with a sum of 0 is held on, without that term.
    for (Held& held : held_) {
      std::erase_if(held.constraint.terms,
                    [&](const Term& term) { return term.variable == variable; });
    }
    variable = solver_.makeVariable();
    return Outcome::done;
  }

  Outcome removeConstraint() {
    if (held_.empty()) return Outcome::done;
    const auto held = held_.begin() + static_cast<std::ptrdiff_t>(bytes_.below(held_.size()));
    require(solver_.remove(held->id) == Outcome::done, "a constraint can be removed");
    require(solver_.setConstant(held->id, 1) == Outcome::unknownConstraint, "and is gone then");
    held_.erase(held);
    return Outcome::done;
  }

  Outcome changeConstant() {
    if (held_.empty()) return Outcome::done;
    Held& held = held_[bytes_.below(held_.size())];
    const double before = held.constraint.constant;
    held.constraint.constant = bytes_.constant();
    const Outcome outcome = solver_.setConstant(held.id, held.constraint.constant);
    requireRightVerdict(outcome);
    if (outcome != Outcome::done) held.constraint.constant = before;
    return outcome;
  }

  Outcome add() {
    if (held_.size() == kConstraints) return Outcome::done;
    Constraint constraint;
    constraint.terms.resize(1 + bytes_.below(4));
    for (Term& term : constraint.terms) {
      term.variable = variables_[bytes_.below(kVariables)];
      term.coefficient = kCoefficients[bytes_.below(kCoefficients.size())];
    }
    constraint.relation = static_cast<Relation>(static_cast<int>(bytes_.below(3)) - 1);
    constraint.constant = bytes_.constant();
    constraint.strength = kStrengths[bytes_.below(kStrengths.size())];
    const Solver::Added added = solver_.add(constraint);
    held_.push_back({added.constraint, constraint});
    requireRightVerdict(added.outcome);
    if (added.outcome != Outcome::done) held_.pop_back();
    return added.outcome;
  }

  [[nodiscard]] std::vector<double> values() {
    solver_.update();
    std::vector<double> values;
    for (const Variable variable : variables_) values.push_back(solver_.value(variable));
    return values;
  }

  void requireUnchanged(std::span<const double> before) {
    const std::vector<double> after = values();
    for (std::size_t i = 0; i < after.size(); ++i) {
      require(std::abs(after[i] - before[i]) <= 1e-6 * std::max(1.0, std::abs(before[i])),
              "a refusal changes nothing");
    }
  }

  void requireRightVerdict(Outcome outcome) {
    require(outcome == Outcome::done || outcome == Outcome::unsatisfiable, "all handles are known");
    std::vector<Constraint> required;
    for (const Held& held : held_) {
      if (held.constraint.strength >= kRequired) required.push_back(held.constraint);
    }
    require(anew(required).has_value() == (outcome == Outcome::done),
            "another order, the same verdict");
  }

  // Of the strengths the first at which both differ decides which of them is better.
  void requireBest() {
    solver_.update();
    Sums own;
    std::vector<Constraint> constraints;
    for (const Held& held : held_) {
      addViolation(own, solver_, held.constraint);
      constraints.push_back(held.constraint);
    }
    const std::optional<Sums> other = anew(std::move(constraints));
    require(other.has_value(), "what is held can be held");
    for (const auto& [strength, sum] : own) {
      const Sum& best = other->at(strength);
      const double tolerance = 1e-6 * std::max(1.0, best.amount) + 1e-9 * (sum.size + best.size);
      require(std::abs(sum.amount - best.amount) <= tolerance, "as good as solving anew");
    }
  }

  void requireHeld() {
    solver_.update();
    for (const Held& held : held_) {
      if (held.constraint.strength < kRequired) continue;
      double sum = 0;
      double size = 1;
      for (const Term& term : held.constraint.terms) {
        const double product = term.coefficient * solver_.value(term.variable);
        sum += product;
        size = std::max(size, std::abs(product));
      }
      const double excess = sum - held.constraint.constant;
      const double tolerance = 1e-6 * size;
      require(std::isfinite(sum), "values are finite");
      require(held.constraint.relation == Relation::lessThanOrEqual || excess >= -tolerance,
              "what is required is not less");
      require(held.constraint.relation == Relation::greaterThanOrEqual || excess <= tolerance,
              "what is required is not more");
    }
  }

  Bytes bytes_;
  Solver solver_;
  std::vector<Variable> variables_;
  std::vector<Held> held_;
};

}  // namespace
}  // namespace kindora::layout

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kindora::layout::Play({data, size}).run();
  return 0;
}
