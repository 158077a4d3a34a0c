// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <iostream>

#include "layout/Solver.h"

// Something as wide as it is told to be, in the middle of 375.
int main() {
  using namespace kindora::layout;
  Solver solver;
  const Variable left = solver.makeVariable();
  const Variable width = solver.makeVariable();
  solver.add({{{left, 2}, {width}}, Relation::equal, 375});
  solver.add({{{left}}, Relation::greaterThanOrEqual, 20});
  const ConstraintId size = solver.add({{{width}}, Relation::equal, 300, kHugging}).constraint;
  solver.update();
  std::cout << solver.value(left) << ' ' << solver.value(width) << '\n';
  solver.setConstant(size, 350);
  solver.update();
  std::cout << solver.value(left) << ' ' << solver.value(width) << '\n';
}
