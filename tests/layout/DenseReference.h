// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A slow and plain way to the same end as the solver's, from scratch each time: a dense two-phase
// simplex that minimises the violations strength by strength.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "layout/Constraint.h"

namespace kindora::layout {

/// A constraint whose coefficients stand for variable 0, 1, 2 ...
struct DenseConstraint {
  std::vector<double> coefficients;
  Relation relation = Relation::equal;
  double constant = 0;
  double strength = kRequired;

  /// By how much values miss it.
  [[nodiscard]] double violation(const std::vector<double>& values) const;
};

/// The least sums of violations by strength; none if the required constraints contradict.
[[nodiscard]] std::optional<std::map<double, double>> leastViolations(
    const std::vector<DenseConstraint>& constraints, std::size_t variables);

}  // namespace kindora::layout
