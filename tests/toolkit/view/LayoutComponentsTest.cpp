// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutComponents.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

using layout::Term;
using layout::Variable;

constexpr Variable kA{0, 1};
constexpr Variable kB{1, 1};
constexpr Variable kC{2, 1};
constexpr Variable kD{3, 1};
constexpr Variable kGiven{4, 1};

const std::vector<Term> kAB{{kA}, {kB}};
const std::vector<Term> kBC{{kB}, {kC}};
const std::vector<Term> kOnlyD{{kD}};
const std::vector<Term> kGivenAndA{{kGiven}, {kA}};
const std::vector<Term> kGivenAndD{{kGiven}, {kD}};

class LayoutComponentsTest : public ::testing::Test {
 protected:
  LayoutComponents components;
};

TEST_F(LayoutComponentsTest, WhatSharesAVariableIsTouchedTogether) {
  components.connect(kAB);
  components.connect(kOnlyD);
  components.connect(kBC);
  components.touch(kC);
  EXPECT_TRUE(components.isTouched(kAB));
  EXPECT_FALSE(components.isTouched(kOnlyD));
}

TEST_F(LayoutComponentsTest, WhatIsGivenHoldsNothingTogether) {
  components.fix(kGiven);
  components.connect(kGivenAndA);
  components.connect(kGivenAndD);
  components.touch(kGivenAndA);
  EXPECT_TRUE(components.isTouched(kGivenAndA));
  EXPECT_FALSE(components.isTouched(kGivenAndD));
}

TEST_F(LayoutComponentsTest, WhatIsGivenTouchesAllThatMentionsIt) {
  components.fix(kGiven);
  components.connect(kGivenAndA);
  components.connect(kAB);
  components.connect(kOnlyD);
  components.touch(kGiven);
  EXPECT_TRUE(components.isTouched(kAB));
  EXPECT_FALSE(components.isTouched(kOnlyD));
}

TEST_F(LayoutComponentsTest, AtFirstNothingIsTouched) {
  components.connect(kAB);
  EXPECT_FALSE(components.isTouched(kAB));
}

}  // namespace
}  // namespace kindora
