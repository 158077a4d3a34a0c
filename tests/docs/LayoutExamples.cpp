// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "layout/Solver.h"

namespace kindora::layout {
namespace {

TEST(LayoutExamples, HalvesWhatIsLeft) {
#include "examples/layout/Solver.h.1"
  EXPECT_EQ(solver.value(left), 37.5);
}

TEST(LayoutExamples, OfStrengthsTheHigherIsServedFirst) {
#include "examples/docs/layout.md.1"
  EXPECT_EQ(solver.value(width), 240);
}

TEST(LayoutExamples, RefusesWhatContradicts) {
#include "examples/docs/layout.md.2"
  EXPECT_EQ(refused.outcome, Outcome::unsatisfiable);
}

}  // namespace
}  // namespace kindora::layout
