// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/Solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kindora::layout {
namespace {

constexpr double kClose = 1e-9;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

class SolverTest : public testing::Test {
 protected:
  ConstraintId hold(const Constraint& constraint) {
    const Solver::Added added = solver.add(constraint);
    EXPECT_EQ(added.outcome, Outcome::done);
    return added.constraint;
  }

  double value(Variable variable) {
    solver.update();
    return solver.value(variable);
  }

  Solver solver;
  Variable x = solver.makeVariable();
  Variable y = solver.makeVariable();
  Variable z = solver.makeVariable();
};

TEST_F(SolverTest, AVariableInNoConstraintIsZero) { EXPECT_EQ(value(x), 0); }

TEST_F(SolverTest, AVariableWhoseConstraintsAreGoneIsZeroAgain) {
  const ConstraintId defining = hold({{{x}}, Relation::equal, 5});
  EXPECT_NEAR(value(x), 5, kClose);
  EXPECT_EQ(solver.remove(defining), Outcome::done);
  EXPECT_EQ(value(x), 0);
  const ConstraintId wish = hold({{{x}}, Relation::equal, 5, kHugging});
  EXPECT_NEAR(value(x), 5, kClose);
  EXPECT_EQ(solver.remove(wish), Outcome::done);
  EXPECT_EQ(value(x), 0);
}

TEST_F(SolverTest, ValuesChangeWithTheUpdateOnly) {
  const ConstraintId defining = hold({{{x}}, Relation::equal, 5});
  EXPECT_EQ(solver.value(x), 0);
  solver.update();
  EXPECT_EQ(solver.setConstant(defining, 7), Outcome::done);
  EXPECT_NEAR(solver.value(x), 5, kClose);
  EXPECT_NEAR(value(x), 7, kClose);
}

TEST_F(SolverTest, RequiredInequalitiesBoundAWish) {
  hold({{{x}}, Relation::greaterThanOrEqual, 10});
  hold({{{x}}, Relation::lessThanOrEqual, 20});
  const ConstraintId wish = hold({{{x}}, Relation::equal, 15, kHugging});
  EXPECT_NEAR(value(x), 15, kClose);
  EXPECT_EQ(solver.setConstant(wish, 30), Outcome::done);
  EXPECT_NEAR(value(x), 20, kClose);
  EXPECT_EQ(solver.setConstant(wish, -30), Outcome::done);
  EXPECT_NEAR(value(x), 10, kClose);
}

TEST_F(SolverTest, CompressionBeatsAnyNumberOfHuggings) {
  hold({{{x}}, Relation::greaterThanOrEqual, 40, kCompression});
  for (int i = 0; i < 2000; ++i) hold({{{x, 100}}, Relation::equal, 0, kHugging});
  EXPECT_NEAR(value(x), 40, kClose);
}

TEST_F(SolverTest, AStrengthBarelyHigherBeatsManyBelow) {
  for (int i = 0; i < 50; ++i) hold({{{x}}, Relation::equal, 0, 500});
  hold({{{x}}, Relation::equal, 7, std::nextafter(500.0, 501.0)});
  EXPECT_NEAR(value(x), 7, kClose);
}

TEST_F(SolverTest, WithinOneStrengthTheMajorityWins) {
  hold({{{x}}, Relation::equal, 3, kHugging});
  hold({{{x}}, Relation::equal, 9, kHugging});
  hold({{{x}}, Relation::equal, 9, kHugging});
  EXPECT_NEAR(value(x), 9, kClose);
}

TEST_F(SolverTest, AConstraintWrittenTwiceAsLargeCountsTwice) {
  hold({{{x}}, Relation::equal, 0, kHugging});
  hold({{{x, 2}}, Relation::equal, 20, kHugging});
  EXPECT_NEAR(value(x), 10, kClose);
}

TEST_F(SolverTest, StrengthZeroStillCountsWhereNothingElseDoes) {
  hold({{{x}}, Relation::equal, 4, 0});
  EXPECT_NEAR(value(x), 4, kClose);
  hold({{{x}}, Relation::equal, 6, 1});
  EXPECT_NEAR(value(x), 6, kClose);
}

TEST_F(SolverTest, StrengthBelowZeroCountsAsZero) {
  hold({{{x}}, Relation::equal, 4, -50});
  hold({{{x}}, Relation::equal, 6, 0});
  hold({{{x}}, Relation::equal, 6, -1});
  EXPECT_NEAR(value(x), 6, kClose);
}

TEST_F(SolverTest, StrengthAboveRequiredIsRequired) {
  hold({{{x}}, Relation::equal, 4, 5000});
  EXPECT_EQ(solver.add({{{x}}, Relation::equal, 5}).outcome, Outcome::unsatisfiable);
}

TEST_F(SolverTest, AContradictingEqualityIsRefusedAndChangesNothing) {
  hold({{{x}}, Relation::equal, 4});
  hold({{{y}, {x, -1}}, Relation::equal, 2});
  const Solver::Added refused = solver.add({{{y}}, Relation::equal, 7});
  EXPECT_EQ(refused.outcome, Outcome::unsatisfiable);
  EXPECT_EQ(solver.remove(refused.constraint), Outcome::unknownConstraint);
  EXPECT_NEAR(value(x), 4, kClose);
  EXPECT_NEAR(value(y), 6, kClose);
}

TEST_F(SolverTest, AContradictingInequalityIsRefusedAndChangesNothing) {
  hold({{{x}, {y}}, Relation::lessThanOrEqual, 10});
  hold({{{x}}, Relation::greaterThanOrEqual, 4});
  hold({{{y}}, Relation::equal, 3, kHugging});
  const double x0 = value(x);
  EXPECT_EQ(solver.add({{{y}, {x, 0.5}}, Relation::greaterThanOrEqual, 9}).outcome,
            Outcome::unsatisfiable);
  EXPECT_NEAR(value(x), x0, kClose);
  EXPECT_NEAR(value(y), 3, kClose);
}

TEST_F(SolverTest, AConstantThatContradictsIsRefusedAndChangesNothing) {
  const ConstraintId width = hold({{{x}}, Relation::equal, 5});
  hold({{{y}, {x, -2}}, Relation::equal, 0});
  hold({{{y}}, Relation::lessThanOrEqual, 20});
  EXPECT_EQ(solver.setConstant(width, 11), Outcome::unsatisfiable);
  EXPECT_NEAR(value(y), 10, kClose);
  EXPECT_EQ(solver.setConstant(width, 10), Outcome::done);
  EXPECT_NEAR(value(y), 20, kClose);
}

TEST_F(SolverTest, OneOfTwoRedundantEqualitiesCannotChangeAlone) {
  const ConstraintId first = hold({{{x}}, Relation::equal, 5});
  const ConstraintId second = hold({{{x}}, Relation::equal, 5});
  EXPECT_EQ(solver.setConstant(first, 6), Outcome::unsatisfiable);
  EXPECT_EQ(solver.setConstant(second, 6), Outcome::unsatisfiable);
  EXPECT_NEAR(value(x), 5, kClose);
}

TEST_F(SolverTest, OfTwoEqualConstraintsEitherCanGo) {
  const ConstraintId first = hold({{{x}}, Relation::equal, 5});
  const ConstraintId second = hold({{{x}}, Relation::equal, 5});
  EXPECT_EQ(solver.remove(first), Outcome::done);
  EXPECT_NEAR(value(x), 5, kClose);
  EXPECT_EQ(solver.setConstant(second, 6), Outcome::done);
  EXPECT_NEAR(value(x), 6, kClose);
  EXPECT_EQ(solver.remove(second), Outcome::done);
  EXPECT_EQ(value(x), 0);
}

TEST_F(SolverTest, ARedundantEqualityHoldsOnWhenWhatImpliedItGoes) {
  const ConstraintId first = hold({{{x}}, Relation::equal, 5});
  hold({{{y}, {x, -1}}, Relation::equal, 1});
  hold({{{y}}, Relation::equal, 6});
  EXPECT_EQ(solver.remove(first), Outcome::done);
  EXPECT_NEAR(value(x), 5, kClose);
  EXPECT_EQ(solver.add({{{x}}, Relation::equal, 4}).outcome, Outcome::unsatisfiable);
}

TEST_F(SolverTest, EqualitiesInACircleAreSolved) {
  hold({{{x}, {y, -1}}, Relation::equal, 1});
  hold({{{y}, {z, -1}}, Relation::equal, 1});
  hold({{{z}, {x}}, Relation::equal, 10});
  EXPECT_NEAR(value(x), 6, kClose);
  EXPECT_NEAR(value(y), 5, kClose);
  EXPECT_NEAR(value(z), 4, kClose);
}

TEST_F(SolverTest, ADefinitionAddedBelowOthersReachesThem) {
  hold({{{x}, {y, -1}}, Relation::equal, 1});
  hold({{{y}, {z, -1}}, Relation::equal, 1});
  hold({{{z}}, Relation::equal, 10});
  EXPECT_NEAR(value(x), 12, kClose);
}

TEST_F(SolverTest, ADefinitionUnderAWishCanGoAndComeBack) {
  hold({{{y}, {x, -1}}, Relation::equal, 2});
  hold({{{y}}, Relation::equal, 9, kHugging});
  EXPECT_NEAR(value(x), 7, kClose);
  for (int i = 0; i < 20; ++i) {
    const ConstraintId defining = hold({{{x}}, Relation::equal, 1.0 * i});
    EXPECT_NEAR(value(y), i + 2, kClose);
    EXPECT_EQ(solver.remove(defining), Outcome::done);
    EXPECT_NEAR(value(y), 9, kClose);
  }
}

TEST_F(SolverTest, ARemovedConstraintIsUnknown) {
  const ConstraintId id = hold({{{x}}, Relation::equal, 5});
  EXPECT_EQ(solver.remove(id), Outcome::done);
  EXPECT_EQ(solver.remove(id), Outcome::unknownConstraint);
  EXPECT_EQ(solver.setConstant(id, 1), Outcome::unknownConstraint);
  hold({{{x}}, Relation::equal, 6});
  EXPECT_EQ(solver.remove(id), Outcome::unknownConstraint);
  EXPECT_NEAR(value(x), 6, kClose);
}

TEST_F(SolverTest, AnEmptyHandleNamesNothing) {
  EXPECT_EQ(solver.remove({}), Outcome::unknownConstraint);
  EXPECT_EQ(solver.removeVariable({}), Outcome::unknownVariable);
  EXPECT_EQ(solver.add({{{Variable{}}}, Relation::equal, 5}).outcome, Outcome::unknownVariable);
  EXPECT_EQ(solver.value({}), 0);
}

TEST_F(SolverTest, ARemovedVariableIsUnknownAndTakesItsConstraintsAlong) {
  const ConstraintId id = hold({{{x}, {y}}, Relation::equal, 5});
  hold({{{y}}, Relation::equal, 2});
  EXPECT_EQ(solver.removeVariable(x), Outcome::done);
  EXPECT_EQ(solver.removeVariable(x), Outcome::unknownVariable);
  EXPECT_EQ(solver.remove(id), Outcome::unknownConstraint);
  EXPECT_EQ(solver.add({{{x}}, Relation::equal, 5}).outcome, Outcome::unknownVariable);
  const Variable next = solver.makeVariable();
  EXPECT_NE(next, x);
  hold({{{next}}, Relation::equal, 8});
  EXPECT_NEAR(value(next), 8, kClose);
  EXPECT_EQ(value(x), 0);
  EXPECT_NEAR(value(y), 2, kClose);
}

TEST_F(SolverTest, TermsOfOneVariableAddUp) {
  hold({{{x}, {x, 2}, {y}, {y, -1}}, Relation::equal, 12});
  EXPECT_NEAR(value(x), 4, kClose);
  EXPECT_EQ(value(y), 0);
}

TEST_F(SolverTest, CoefficientsNearZeroAreLeftOut) {
  hold({{{x}, {y, 1e-12}}, Relation::equal, 3});
  hold({{{y}}, Relation::equal, 1e13});
  EXPECT_NEAR(value(x), 3, kClose);
  EXPECT_EQ(solver.add({{{x, 1e-12}}, Relation::equal, 1}).outcome, Outcome::unsatisfiable);
}

TEST_F(SolverTest, WithoutTermsARequiredConstraintMustBeTrueOfZero) {
  EXPECT_EQ(solver.add({{}, Relation::equal, 1}).outcome, Outcome::unsatisfiable);
  EXPECT_EQ(solver.add({{}, Relation::lessThanOrEqual, -1}).outcome, Outcome::unsatisfiable);
  EXPECT_EQ(solver.add({{}, Relation::greaterThanOrEqual, 1}).outcome, Outcome::unsatisfiable);
  const ConstraintId held = hold({{{x}, {x, -1}}, Relation::lessThanOrEqual, 1});
  EXPECT_EQ(solver.setConstant(held, -1), Outcome::unsatisfiable);
  EXPECT_EQ(solver.setConstant(held, 0), Outcome::done);
  EXPECT_EQ(solver.remove(held), Outcome::done);
}

TEST_F(SolverTest, WithoutTermsAWishHasNoEffect) {
  const ConstraintId wish = hold({{}, Relation::equal, 1, kHugging});
  EXPECT_EQ(solver.setConstant(wish, 2), Outcome::done);
  EXPECT_EQ(value(x), 0);
  EXPECT_EQ(solver.remove(wish), Outcome::done);
}

TEST_F(SolverTest, NumbersThatAreNotFiniteAreRefused) {
  EXPECT_EQ(solver.add({{{x}}, Relation::equal, kNotANumber}).outcome, Outcome::notFinite);
  EXPECT_EQ(solver.add({{{x, kInfinite}}, Relation::equal, 0}).outcome, Outcome::notFinite);
  EXPECT_EQ(solver.add({{{x}}, Relation::equal, 0, kNotANumber}).outcome, Outcome::notFinite);
  const double huge = std::numeric_limits<double>::max();
  EXPECT_EQ(solver.add({{{x, huge}, {x, huge}}, Relation::equal, 0}).outcome, Outcome::notFinite);
  const ConstraintId held = hold({{{x}}, Relation::equal, 2});
  EXPECT_EQ(solver.setConstant(held, kInfinite), Outcome::notFinite);
  EXPECT_NEAR(value(x), 2, kClose);
}

TEST_F(SolverTest, ManyEqualConstraintsEnd) {
  for (int i = 0; i < 100; ++i) {
    hold({{{x}, {y, -1}}, Relation::greaterThanOrEqual, 0});
    hold({{{y}, {x, -1}}, Relation::greaterThanOrEqual, 0});
    hold({{{x}, {y}}, Relation::lessThanOrEqual, 0});
    hold({{{x}}, Relation::greaterThanOrEqual, 0, kCompression});
    hold({{{y}}, Relation::equal, 10, kHugging});
  }
  EXPECT_NEAR(value(x), 0, kClose);
  EXPECT_NEAR(value(y), 0, kClose);
}

TEST_F(SolverTest, ACopyGoesItsOwnWay) {
  const ConstraintId id = hold({{{x}}, Relation::equal, 2});
  Solver copy = solver;
  EXPECT_EQ(copy.setConstant(id, 3), Outcome::done);
  copy.update();
  EXPECT_NEAR(copy.value(x), 3, kClose);
  EXPECT_NEAR(value(x), 2, kClose);
}

TEST_F(SolverTest, ConstantsThatReturnAThousandTimesDoNotDrift) {
  const ConstraintId width = hold({{{x}}, Relation::equal, 300});
  hold({{{y}, {x, -0.1}}, Relation::greaterThanOrEqual, 0});
  hold({{{y}}, Relation::equal, 0, kHugging});
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(solver.setConstant(width, 300 + i / 3.0), Outcome::done);
    EXPECT_EQ(solver.setConstant(width, 300), Outcome::done);
  }
  EXPECT_NEAR(value(y), 30, kClose);
}

}  // namespace
}  // namespace kindora::layout
