// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/MotionEffects.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeViewServices.h"
#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

class MotionEffectsTest : public ::testing::Test {
 protected:
  static UIViewRef make() {
    auto view = std::make_shared<UIView>();
    view->setFrame({{100, 100}, {10, 10}});
    view->addMotionEffect(
        {{{.keyPath = "center.x", .minimumRelativeValue = -20, .maximumRelativeValue = 20}}});
    return view;
  }
  [[nodiscard]] static double shownX(const UIView& view) {
    return view.presentation().frame.origin.x;
  }

  const FakeViewServices fakes = installFakeViewServices();
  MotionEffects effects;
};

TEST_F(MotionEffectsTest, TheSensorRestsWithoutViews) { EXPECT_FALSE(fakes.motion->handler); }

TEST_F(MotionEffectsTest, AViewOnTheScreenFollowsTheTilt) {
  const auto view = make();
  effects.show(view);
  ASSERT_TRUE(fakes.motion->handler);
  fakes.motion->handler(0.5, 0);
  EXPECT_EQ(shownX(*view), 110);
  EXPECT_EQ(view->frame().origin.x, 100);
}

TEST_F(MotionEffectsTest, NothingFollowsTheTiltWithoutMotion) {
  const auto view = make();
  effects.show(view);
  fakes.motion->handler(0.5, 0);
  fakes.looks->change({.reducedMotion = true});
  fakes.motion->handler(1, 0);
  EXPECT_EQ(shownX(*view), 100);
}

TEST_F(MotionEffectsTest, AViewThatComesLaterIsTiltedAtOnce) {
  const auto first = make();
  const auto second = make();
  effects.show(first);
  fakes.motion->handler(-1, 0);
  effects.show(second);
  EXPECT_EQ(shownX(*second), 80);
}

TEST_F(MotionEffectsTest, AViewThatLeavesStandsStraightAndHearsNoMore) {
  const auto first = make();
  const auto second = make();
  effects.show(first);
  effects.show(second);
  fakes.motion->handler(1, 0);
  effects.hide(first);
  EXPECT_EQ(shownX(*first), 100);
  fakes.motion->handler(0.5, 0);
  EXPECT_EQ(shownX(*first), 100);
  EXPECT_EQ(shownX(*second), 110);
}

TEST_F(MotionEffectsTest, TheSensorRestsAgainWhenTheLastViewLeaves) {
  const auto first = make();
  const auto second = make();
  effects.show(first);
  effects.show(second);
  effects.hide(first);
  EXPECT_TRUE(fakes.motion->handler);
  effects.hide(second);
  EXPECT_FALSE(fakes.motion->handler);
}

TEST_F(MotionEffectsTest, ShownTwiceAViewLeavesOnce) {
  const auto view = make();
  effects.show(view);
  effects.show(view);
  effects.hide(view);
  EXPECT_FALSE(fakes.motion->handler);
}

TEST_F(MotionEffectsTest, ATiltOfEarlierIsForgotten) {
  const auto view = make();
  effects.show(view);
  fakes.motion->handler(1, 0);
  effects.hide(view);
  effects.show(view);
  EXPECT_EQ(shownX(*view), 100);
}

TEST_F(MotionEffectsTest, HidingAViewThatWasNotShownLeavesTheRest) {
  const auto view = make();
  effects.show(view);
  effects.hide(make());
  EXPECT_TRUE(fakes.motion->handler);
}

}  // namespace
}  // namespace kindora
