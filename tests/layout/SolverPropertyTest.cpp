// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What holds for any system, held against a plain solution from scratch.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <map>
#include <optional>
#include <vector>

#include "layout/Solver.h"
#include "tests/layout/DenseReference.h"

namespace kindora::layout {
namespace {

constexpr double kSame = 1e-6;

struct Held {
  ConstraintId id;
  DenseConstraint dense;
};

struct System {
  Solver solver;
  std::vector<Variable> variables;
  std::vector<Held> held;

  explicit System(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) variables.push_back(solver.makeVariable());
  }

  [[nodiscard]] Constraint constraint(const DenseConstraint& dense) const {
    Constraint result{{}, dense.relation, dense.constant, dense.strength};
    for (std::size_t i = 0; i < variables.size(); ++i) {
      if (dense.coefficients[i] != 0) {
        result.terms.push_back({variables[i], dense.coefficients[i]});
      }
    }
    return result;
  }

  bool add(const DenseConstraint& dense) {
    const Solver::Added added = solver.add(constraint(dense));
    if (added.outcome != Outcome::done) return false;
    held.push_back({added.constraint, dense});
    return true;
  }

  void remove(std::size_t index) {
    RC_ASSERT(solver.remove(held[index].id) == Outcome::done);
    held.erase(held.begin() + static_cast<std::ptrdiff_t>(index));
  }

  bool setConstant(std::size_t index, double constant) {
    if (solver.setConstant(held[index].id, constant) != Outcome::done) return false;
    held[index].dense.constant = constant;
    return true;
  }

  [[nodiscard]] std::vector<DenseConstraint> dense() const {
    std::vector<DenseConstraint> result;
    for (const Held& one : held) result.push_back(one.dense);
    return result;
  }

  [[nodiscard]] std::vector<double> values() {
    solver.update();
    std::vector<double> result;
    for (const Variable variable : variables) result.push_back(solver.value(variable));
    return result;
  }

  // Required constraints hold, and for each strength the violations are the least there can be.
  void check() {
    const std::vector<double> found = values();
    std::map<double, double> sums;
    for (const Held& one : held) {
      const double violation = one.dense.violation(found);
      if (one.dense.strength >= kRequired) {
        RC_ASSERT(violation < kSame);
      } else {
        sums[one.dense.strength] += violation;
      }
    }
    const auto least = leastViolations(dense(), variables.size());
    RC_ASSERT(least.has_value());
    RC_ASSERT(least->size() == sums.size());
    for (const auto& [strength, sum] : *least) RC_ASSERT(std::abs(sums[strength] - sum) < kSame);
  }
};

rc::Gen<DenseConstraint> constraints(std::size_t variables) {
  return rc::gen::build<DenseConstraint>(
      rc::gen::set(
          &DenseConstraint::coefficients,
          rc::gen::container<std::vector<double>>(
              variables, rc::gen::weightedElement<double>(
                             {{5, 0.0}, {3, 1.0}, {3, -1.0}, {1, 2.0}, {1, -3.0}, {1, 0.5}}))),
      rc::gen::set(&DenseConstraint::relation,
                   rc::gen::weightedElement<Relation>({{3, Relation::equal},
                                                       {1, Relation::lessThanOrEqual},
                                                       {1, Relation::greaterThanOrEqual}})),
      rc::gen::set(&DenseConstraint::constant,
                   rc::gen::map(rc::gen::inRange(-20, 21),
                                [](int number) { return static_cast<double>(number); })),
      rc::gen::set(&DenseConstraint::strength,
                   rc::gen::weightedElement<double>(
                       {{6, kRequired}, {2, kCompression}, {2, kHugging}, {1, 400.0}, {1, 0.0}})));
}

// A system of a random size after random calls, each held against the reference.
System playedSystem(std::size_t most, int calls, bool checkEach) {
  const auto count = *rc::gen::inRange<std::size_t>(1, most + 1);
  System system(count);
  for (int call = 0; call < calls; ++call) {
    const int kind = *rc::gen::inRange(0, 10);
    if (kind < 6 || system.held.empty()) {
      const DenseConstraint dense = *constraints(count);
      std::vector<DenseConstraint> all = system.dense();
      all.push_back(dense);
      const bool isPossible = leastViolations(all, count).has_value();
      RC_ASSERT(system.add(dense) == isPossible);
    } else {
      const auto index = *rc::gen::inRange<std::size_t>(0, system.held.size());
      if (kind < 8) {
        system.remove(index);
      } else {
        const double constant = *rc::gen::inRange(-20, 21);
        std::vector<DenseConstraint> all = system.dense();
        all[index].constant = constant;
        const bool isPossible = leastViolations(all, count).has_value();
        RC_ASSERT(system.setConstant(index, constant) == isPossible);
      }
    }
    if (checkEach) system.check();
  }
  return system;
}

RC_GTEST_PROP(SolverProperty, AnyCallsLeadToTheSameViolationsAsSolvingFromScratch, ()) {
  playedSystem(4, 14, true);
}

RC_GTEST_PROP(SolverProperty, ManyCallsBetweenUpdatesLeadToTheSameViolations, ()) {
  playedSystem(6, 30, false).check();
}

RC_GTEST_PROP(SolverProperty, ARefusedConstraintLeavesAllValues, ()) {
  System system = playedSystem(4, 12, false);
  const std::vector<double> before = system.values();
  const DenseConstraint dense = *constraints(system.variables.size());
  RC_PRE(!system.add(dense));
  const std::vector<double> after = system.values();
  for (std::size_t i = 0; i < before.size(); ++i) {
    RC_ASSERT(std::abs(after[i] - before[i]) < kSame);
  }
  system.check();
}

RC_GTEST_PROP(SolverProperty, RemovingWhatWasAddedRestoresTheViolations, ()) {
  System system = playedSystem(4, 12, false);
  const std::size_t before = system.held.size();
  for (int i = 0; i < 4; ++i) system.add(*constraints(system.variables.size()));
  while (system.held.size() > before) {
    system.remove(*rc::gen::inRange<std::size_t>(before, system.held.size()));
  }
  system.check();
}

RC_GTEST_PROP(SolverProperty, AChangedConstantEqualsBuildingAnew, ()) {
  System system = playedSystem(4, 12, false);
  RC_PRE(!system.held.empty());
  for (int i = 0; i < 5; ++i) {
    system.setConstant(*rc::gen::inRange<std::size_t>(0, system.held.size()),
                       *rc::gen::inRange(-20, 21));
  }
  System anew(system.variables.size());
  for (const Held& one : system.held) RC_ASSERT(anew.add(one.dense));
  anew.check();
  system.check();
}

RC_GTEST_PROP(SolverProperty, OrderDoesNotDecideAUniqueSolution, ()) {
  const auto count = *rc::gen::inRange<std::size_t>(1, 7);
  std::vector<DenseConstraint> chain;
  for (std::size_t i = 0; i < count; ++i) {
    DenseConstraint link{std::vector<double>(count, 0), Relation::equal,
                         static_cast<double>(*rc::gen::inRange(-20, 21))};
    link.coefficients[i] = 1;
    for (std::size_t j = 0; j < i; ++j) link.coefficients[j] = *rc::gen::inRange(-2, 3);
    link.strength = *rc::gen::element(kRequired, kCompression);
    chain.push_back(link);
  }
  System inOrder(count);
  for (const DenseConstraint& link : chain) RC_ASSERT(inOrder.add(link));
  System shuffled(count);
  while (!chain.empty()) {
    const auto index = *rc::gen::inRange<std::size_t>(0, chain.size());
    RC_ASSERT(shuffled.add(chain[index]));
    chain.erase(chain.begin() + static_cast<std::ptrdiff_t>(index));
  }
  const std::vector<double> expected = inOrder.values();
  const std::vector<double> found = shuffled.values();
  for (std::size_t i = 0; i < count; ++i) RC_ASSERT(std::abs(expected[i] - found[i]) < kSame);
}

RC_GTEST_PROP(SolverProperty, RemovingAVariableRemovesWhatMentionsIt, ()) {
  System system = playedSystem(4, 12, false);
  const std::size_t gone = system.variables.size() - 1;
  RC_ASSERT(system.solver.removeVariable(system.variables[gone]) == Outcome::done);
  std::vector<Held> left;
  for (const Held& one : system.held) {
    const bool isGone = one.dense.coefficients[gone] != 0;
    RC_ASSERT((system.solver.setConstant(one.id, one.dense.constant) == Outcome::done) != isGone);
    if (!isGone) left.push_back(one);
  }
  system.held = left;
  RC_ASSERT(system.values()[gone] == 0);
  system.check();
}

}  // namespace
}  // namespace kindora::layout
