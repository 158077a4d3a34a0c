// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>
#include <vector>

namespace kindora::layout {

/// An amount for each strength; the highest strength decides first. Amounts within 1e-9 of 0 decide
/// nothing.
class SymbolicWeight final {
 public:
  [[nodiscard]] bool isEmpty() const { return parts_.empty(); }
  /// The sign of the amount that decides: -1, 0 or 1.
  [[nodiscard]] int sign() const;

  void clear() { parts_.clear(); }
  void add(double strength, double amount);
  void add(const SymbolicWeight& other, double factor);

  /// Whether left * leftFactor comes before right * rightFactor: -1, 0 or 1. What differs by no
  /// more than rounding is equal.
  [[nodiscard]] static int compare(const SymbolicWeight& left, double leftFactor,
                                   const SymbolicWeight& right, double rightFactor);

 private:
  std::vector<std::pair<double, double>> parts_;  // strength and amount, strongest first
};

}  // namespace kindora::layout
