// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The solver's method as it is in books: the same steps in the same order on a dense tableau of
// fractions, with the smallest symbol of all that may be chosen. It tells what is right, and how
// many exchanges that takes.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

#include "layout/Constraint.h"
#include "tests/layout/Rational.h"

namespace kindora::layout {

class ExactSolver final {
 public:
  struct Sum {
    std::vector<Rational> coefficients;  ///< of variable 0, 1, 2 ...
    Relation relation = Relation::equal;
    Rational constant;
    double strength = kRequired;
  };

  explicit ExactSolver(std::size_t variables);

  /// The name of the constraint; none if it contradicts. Throws TooLarge, as all below.
  [[nodiscard]] std::optional<std::size_t> add(const Sum& sum);
  void remove(std::size_t name);
  [[nodiscard]] bool setConstant(std::size_t name, const Rational& constant);

  /// The sums of violations by strength.
  [[nodiscard]] std::map<double, double> violations() const;
  [[nodiscard]] std::size_t exchanges() const { return exchanges_; }

 private:
  enum class Kind { free, slack, fixed, gone };
  static constexpr std::size_t kNone = ~std::size_t{0};
  struct Symbol {
    Kind kind = Kind::free;
    std::optional<double> strength;  // of which it is a violation
  };
  struct Row {
    std::size_t basic = kNone;
    Rational constant;
    std::vector<Rational> cells;  // of each symbol
  };
  struct Held {
    std::size_t surplus = kNone;
    std::size_t shortfall = kNone;
    Rational sign;
    Rational constant;
  };

  std::size_t make(Kind kind, std::optional<double> strength = {});
  [[nodiscard]] std::size_t rowOf(std::size_t symbol) const;
  void exchange(std::size_t row, std::size_t entering);
  [[nodiscard]] int costSign(std::size_t symbol) const;
  [[nodiscard]] std::map<double, Rational> cost(std::size_t symbol) const;
  [[nodiscard]] bool dual();
  void primal();
  void drop(std::size_t symbol);

  std::vector<Symbol> symbols_;
  std::vector<Row> rows_;
  std::vector<Held> held_;
  std::size_t exchanges_ = 0;
};

}  // namespace kindora::layout
