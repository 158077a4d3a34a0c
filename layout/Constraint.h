// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "layout/Variable.h"

namespace kindora::layout {

/// How much a constraint weighs against others: kRequired, or from 0 to below it. The scale is free
/// between the named ones.
///
/// The rule is exact and has no weights in it: of two strengths the higher is served first,
/// whatever the number and size of violations that this costs below. Among constraints of one
/// strength the sum of the violations is made least (in the unit of their sides, so a constraint
/// written twice as large counts twice). Where several solutions are equally good, which one is
/// taken depends on the order of the calls. Violations below 1e-8, or below 1e-12 of the largest
/// constant held, do not count.
inline constexpr double kRequired = 1000;
inline constexpr double kCompression = 750;  ///< against being made smaller than the content
inline constexpr double kHugging = 250;      ///< against being made larger than the content

enum class Relation : std::int8_t { lessThanOrEqual = -1, equal = 0, greaterThanOrEqual = 1 };

struct Term {
  Variable variable;
  double coefficient = 1;
};

/// The sum of the terms (relation) constant. A variable may stand in several terms, they add up;
/// coefficients whose sum is within 1e-8 of 0 are left out.
struct Constraint {
  std::vector<Term> terms;
  Relation relation = Relation::equal;
  double constant = 0;
  double strength = kRequired;  ///< above kRequired counts as required, below 0 as 0
};

/// Names a constraint that a solver holds; one that was removed is known as such.
struct ConstraintId {
  std::uint32_t index = 0;
  std::uint32_t generation = 0;  ///< 0: names nothing
  friend constexpr bool operator==(const ConstraintId&, const ConstraintId&) = default;
};

}  // namespace kindora::layout
