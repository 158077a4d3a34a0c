// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/NSLayoutConstraint.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/toolkit/view/FakeRenderer.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

using Attribute = NSLayoutAttribute;

class NSLayoutConstraintTest : public ::testing::Test {
 protected:
  NSLayoutConstraintTest() {
    a->setName("a");
    b->setName("b");
  }
  const UIViewRef a = std::make_shared<UIView>();
  const UIViewRef b = std::make_shared<UIView>();
};

TEST_F(NSLayoutConstraintTest, NumbersAreThoseOfTheEdgesAndSizesOnThePhone) {
  EXPECT_EQ(static_cast<int>(Attribute::left), 1);
  EXPECT_EQ(static_cast<int>(Attribute::right), 2);
  EXPECT_EQ(static_cast<int>(Attribute::top), 3);
  EXPECT_EQ(static_cast<int>(Attribute::bottom), 4);
  EXPECT_EQ(static_cast<int>(Attribute::width), 7);
  EXPECT_EQ(static_cast<int>(Attribute::height), 8);
  EXPECT_EQ(static_cast<int>(Attribute::centerX), 9);
  EXPECT_EQ(static_cast<int>(Attribute::centerY), 10);
  EXPECT_EQ(static_cast<int>(Attribute::baseline), 11);
  EXPECT_EQ(static_cast<int>(NSLayoutRelation::lessThanOrEqual), -1);
  EXPECT_EQ(static_cast<int>(NSLayoutRelation::equal), 0);
  EXPECT_EQ(static_cast<int>(NSLayoutRelation::greaterThanOrEqual), 1);
}

TEST_F(NSLayoutConstraintTest, DescribesItself) {
  const NSLayoutConstraint edge({.firstItem = a,
                                 .firstAttribute = Attribute::left,
                                 .relation = NSLayoutRelation::greaterThanOrEqual,
                                 .secondItem = b,
                                 .secondAttribute = Attribute::right,
                                 .multiplier = 2,
                                 .constant = 8,
                                 .priority = 250});
  EXPECT_EQ(edge.description(), "a.left >= 2 * b.right + 8 @250");
  const NSLayoutConstraint size({.firstItem = a,
                                 .firstAttribute = Attribute::width,
                                 .relation = NSLayoutRelation::lessThanOrEqual,
                                 .constant = 44});
  EXPECT_EQ(size.description(), "a.width <= 44");
}

TEST_F(NSLayoutConstraintTest, KnowsWhoHoldsItAndWhomItMentions) {
  const auto constraint = std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = a, .firstAttribute = Attribute::width, .constant = 1});
  EXPECT_EQ(constraint->owner(), nullptr);
  a->addConstraint(constraint);
  EXPECT_EQ(constraint->owner(), a);
  b->addConstraint(constraint);
  EXPECT_EQ(constraint->owner(), b);
  EXPECT_TRUE(a->constraints().empty());
  b->removeConstraint(constraint);
  EXPECT_EQ(constraint->owner(), nullptr);
}

TEST_F(NSLayoutConstraintTest, AChangedConstantSchedulesALayoutOnce) {
  const auto constraint = std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = a, .firstAttribute = Attribute::width, .constant = 1});
  a->addConstraint(constraint);
  a->layoutIfNeeded();
  const FakeRenderer renderer(*a);
  constraint->setConstant(1);
  EXPECT_EQ(renderer.scheduled, 0);
  constraint->setConstant(2);
  constraint->setConstant(3);
  EXPECT_EQ(renderer.scheduled, 1);
}

}  // namespace
}  // namespace kindora
