// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavParallax.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(QavParallax, AddsOneGroupOfTwoEffects) {
  UIView view;
  qav_addParallax(view, {15.75, 8});
  ASSERT_EQ(view.motionEffects().size(), 1U);
  const auto& effects = view.motionEffects().front().motionEffects;
  ASSERT_EQ(effects.size(), 2U);
  EXPECT_EQ(effects[0], (UIInterpolatingMotionEffect{
                            "center.x", UIInterpolatingMotionEffectType::tiltAlongHorizontalAxis,
                            -15.75, 15.75}));
  EXPECT_EQ(effects[1],
            (UIInterpolatingMotionEffect{
                "center.y", UIInterpolatingMotionEffectType::tiltAlongVerticalAxis, -8, 8}));
}

TEST(QavParallax, ShowsTheViewDisplacedAndKeepsItsState) {
  const auto view = std::make_shared<UIView>();
  view->setFrame({{100, 100}, {50, 50}});
  qav_addParallax(*view, {16, 8});
  view->setTilt(-1, 0.5);
  EXPECT_EQ(view->presentation().frame, (CGRect{{84, 104}, {50, 50}}));
  EXPECT_EQ(view->frame(), (CGRect{{100, 100}, {50, 50}}));
  view->setTilt(0, 0);
  EXPECT_EQ(view->presentation().frame, view->frame());
}

TEST(QavParallax, EachCallAddsAGroupAndTheirEffectsAddUp) {
  const auto view = std::make_shared<UIView>();
  qav_addParallax(*view, {10, 0});
  qav_addParallax(*view, {5, 0});
  EXPECT_EQ(view->motionEffects().size(), 2U);
  view->setTilt(1, 1);
  EXPECT_EQ(view->presentation().frame.origin, (CGPoint{15, 0}));
}

}  // namespace
}  // namespace kindora
