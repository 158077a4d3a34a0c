// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>
#include <vector>

namespace kindora::layout {

/// An amount for each strength; the highest strength decides first. Amounts within 1e-9 of 0 are 0.
class SymbolicWeight final {
 public:
  [[nodiscard]] bool isZero() const { return parts_.empty(); }
  /// Whether the amount of the highest strength that has any is negative.
  [[nodiscard]] bool isNegative() const { return !parts_.empty() && parts_.front().second < 0; }

  void clear() { parts_.clear(); }
  void add(double strength, double amount);
  void add(const SymbolicWeight& other, double factor);

  /// Whether left * leftFactor comes before right * rightFactor: -1, 0 or 1.
  [[nodiscard]] static int compare(const SymbolicWeight& left, double leftFactor,
                                   const SymbolicWeight& right, double rightFactor);

 private:
  std::vector<std::pair<double, double>> parts_;  // strength and amount, strongest first
};

}  // namespace kindora::layout
