// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/layout/DenseReference.h"

#include <cmath>
#include <functional>

namespace kindora::layout {
namespace {

using Number = long double;
constexpr Number kTiny = 1e-11L;

struct Problem {
  std::vector<std::vector<Number>> rows;  // the last number is the right-hand side
  std::vector<std::size_t> basis;
  std::vector<bool> forbidden;

  void pivot(std::size_t row, std::size_t column) {
    const Number divisor = rows[row][column];
    for (Number& number : rows[row]) number /= divisor;
    for (std::size_t other = 0; other < rows.size(); ++other) {
      const Number factor = rows[other][column];
      if (other == row || factor == 0) continue;
      for (std::size_t i = 0; i < rows[other].size(); ++i) rows[other][i] -= factor * rows[row][i];
    }
    basis[row] = column;
  }

  [[nodiscard]] Number reduced(const std::vector<Number>& costs, std::size_t column) const {
    Number result = costs[column];
    for (std::size_t row = 0; row < rows.size(); ++row) {
      result -= costs[basis[row]] * rows[row][column];
    }
    return result;
  }

  // The least cost; columns that would raise it are forbidden from then on.
  Number minimize(const std::vector<Number>& costs) {
    const std::size_t columns = costs.size();
    for (bool improved = true; improved;) {
      improved = false;
      for (std::size_t column = 0; column < columns && !improved; ++column) {
        if (forbidden[column] || reduced(costs, column) >= -kTiny) continue;
        std::optional<std::size_t> best;
        for (std::size_t row = 0; row < rows.size(); ++row) {
          if (rows[row][column] <= kTiny) continue;
          if (!best) {
            best = row;
            continue;
          }
          const Number difference =
              rows[row][columns] / rows[row][column] - rows[*best][columns] / rows[*best][column];
          if (difference < -kTiny || (difference <= kTiny && basis[row] < basis[*best])) best = row;
        }
        if (!best) continue;
        pivot(*best, column);
        improved = true;
      }
    }
    Number sum = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      sum += costs[basis[row]] * rows[row][columns];
    }
    for (std::size_t column = 0; column < columns; ++column) {
      if (reduced(costs, column) > kTiny) forbidden[column] = true;
    }
    return sum;
  }
};

}  // namespace

double DenseConstraint::violation(const std::vector<double>& values) const {
  double sum = -constant;
  for (std::size_t i = 0; i < coefficients.size(); ++i) sum += coefficients[i] * values[i];
  switch (relation) {
    case Relation::lessThanOrEqual:
      return std::max(0.0, sum);
    case Relation::greaterThanOrEqual:
      return std::max(0.0, -sum);
    default:
      return std::abs(sum);
  }
}

std::optional<std::map<double, double>> leastViolations(
    const std::vector<DenseConstraint>& constraints, std::size_t variables) {
  // For each variable a positive and a negative part, for each constraint what it lacks, what it
  // has too much, and an artificial column.
  const std::size_t count = constraints.size();
  const std::size_t columns = 2 * variables + 3 * count;
  Problem problem;
  problem.forbidden.assign(columns, false);
  std::map<double, std::vector<Number>, std::greater<>> costs;
  std::vector<Number> artificial(columns, 0);
  for (std::size_t row = 0; row < count; ++row) {
    const DenseConstraint& constraint = constraints[row];
    std::vector<Number> numbers(columns + 1, 0);
    const Number sign = constraint.constant < 0 ? -1 : 1;
    for (std::size_t i = 0; i < variables; ++i) {
      numbers[2 * i] = sign * static_cast<Number>(constraint.coefficients[i]);
      numbers[2 * i + 1] = -numbers[2 * i];
    }
    const std::size_t lacking = 2 * variables + 3 * row;
    const std::size_t excess = lacking + 1;
    numbers[lacking] = sign;
    numbers[excess] = -sign;
    numbers[lacking + 2] = 1;
    numbers[columns] = sign * static_cast<Number>(constraint.constant);
    artificial[lacking + 2] = 1;
    const auto judge = [&](std::size_t column, bool isViolation) {
      if (!isViolation) return;
      if (constraint.strength >= kRequired) {
        problem.forbidden[column] = true;
      } else {
        costs.try_emplace(constraint.strength, columns, 0).first->second[column] = 1;
      }
    };
    judge(lacking, constraint.relation != Relation::lessThanOrEqual);
    judge(excess, constraint.relation != Relation::greaterThanOrEqual);
    problem.rows.push_back(std::move(numbers));
    problem.basis.push_back(lacking + 2);
  }
  if (problem.minimize(artificial) > 1e-7L) return std::nullopt;
  std::map<double, double> result;
  for (const auto& [strength, cost] : costs) {
    result[strength] = static_cast<double>(problem.minimize(cost));
  }
  return result;
}

}  // namespace kindora::layout
