// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewTint.h"

#include <gtest/gtest.h>

#include <memory>

#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

constexpr UIColor kRed{1, 0, 0, 0.5};

class UIViewTintTest : public ::testing::Test {
 protected:
  UIViewTintTest() { outer->addSubview(inner); }
  const UIViewRef outer = std::make_shared<UIView>();
  const UIViewRef inner = std::make_shared<UIView>();
};

TEST(UIViewTint, ModesHaveThePhonesValues) {
  EXPECT_EQ(static_cast<int>(UIViewTintAdjustmentMode::automatic), 0);
  EXPECT_EQ(static_cast<int>(UIViewTintAdjustmentMode::normal), 1);
  EXPECT_EQ(static_cast<int>(UIViewTintAdjustmentMode::dimmed), 2);
}

TEST(UIViewTint, AFreshViewHasTheToolkitsTint) {
  EXPECT_EQ(UIView().tintColor(), (UIColor{0, 0.478, 1, 1}));
}

TEST(UIViewTint, GreyIsAsLightAndAsOpaqueAsTheColour) {
  EXPECT_EQ(desaturated(kRed), (UIColor{0.299, 0.299, 0.299, 0.5}));
  EXPECT_NEAR(desaturated(UIColor::whiteColor()).red, 1, 1e-12);
}

TEST_F(UIViewTintTest, IsTheNearestSuperviews) {
  outer->setTintColor(kRed);
  EXPECT_EQ(inner->tintColor(), kRed);
  EXPECT_EQ(inner->ownTintColor(), std::nullopt);
  inner->setTintColor(UIColor::yellowColor());
  EXPECT_EQ(inner->tintColor(), UIColor::yellowColor());
}

TEST_F(UIViewTintTest, IsWhatTheAskerSaysWhereNobodyChose) {
  EXPECT_EQ(inner->tintColor(kRed), kRed);
  outer->setTintColor(UIColor::yellowColor());
  EXPECT_EQ(inner->tintColor(kRed), UIColor::yellowColor());
}

TEST_F(UIViewTintTest, IsGreyInsideADimmedView) {
  outer->setTintColor(kRed);
  outer->setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  EXPECT_EQ(inner->tintColor(), desaturated(kRed));
  inner->setTintAdjustmentMode(UIViewTintAdjustmentMode::normal);
  EXPECT_EQ(inner->tintColor(), kRed);
  inner->setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  outer->setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  EXPECT_EQ(inner->tintColor(), kRed);
}

TEST_F(UIViewTintTest, TellsAllViewsInside) {
  int changes = 0;
  const auto subscription = inner->observe([&changes] { ++changes; });
  for (int time = 0; time < 2; ++time) {
    outer->setTintColor(kRed);
    outer->setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  }
  EXPECT_EQ(changes, 2);
}

TEST_F(UIViewTintTest, AnObserverMayLetGoOfTheView) {
  auto passing = std::make_shared<UIView>();
  passing->addSubview(inner);
  UIView& seen = *passing;
  const auto subscription = seen.observe([&passing] { passing.reset(); });
  seen.setTintColor(kRed);
  EXPECT_EQ(inner->superview(), nullptr);
}

}  // namespace
}  // namespace kindora
