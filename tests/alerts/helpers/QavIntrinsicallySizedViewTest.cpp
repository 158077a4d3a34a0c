// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavIntrinsicallySizedView.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "alerts/helpers/QavAutoLayout.h"
#include "tests/toolkit/view/FakeRenderer.h"
#include "tests/toolkit/view/LayoutFixture.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

constexpr double kSmallest = std::numeric_limits<double>::min();

// Marks a place.
class Guide final : public UIView, public UILayoutSupport {};

class QavIntrinsicallySizedViewTest : public LayoutFixture, public ::testing::Test {
 protected:
  template <typename View = UIView>
  std::shared_ptr<View> add(CGRect frame) {
    auto subview = std::make_shared<View>();
    subview->setFrame(frame);
    view->addSubview(subview);
    return subview;
  }
  // Stands in the corner of the root view and takes what it likes to take.
  void stand() {
    placed(root, view);
    qav_alignEdgesWithSuperview(view, UIRectEdge::top | UIRectEdge::left);
  }

  const std::shared_ptr<QavIntrinsicallySizedView> view =
      std::make_shared<QavIntrinsicallySizedView>();
};

TEST_F(QavIntrinsicallySizedViewTest, IsTheBoxAroundASubviewWhereverThatIs) {
  add({{10, 10}, {50, 20}});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{50, 20}));
}

TEST_F(QavIntrinsicallySizedViewTest, IsTheBoxAroundAllSubviews) {
  add({{10, 10}, {50, 20}});
  add({{-5, 40}, {10, 10}});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{65, 40}));
}

TEST_F(QavIntrinsicallySizedViewTest, WithoutSubviewsThereIsNoSize) {
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{-1, -1}));
}

TEST_F(QavIntrinsicallySizedViewTest, NoRightOrBottomEdgeCountsAsBelowNothing) {
  add({{-40, -60}, {20, 10}});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{40, 60}));
}

TEST_F(QavIntrinsicallySizedViewTest, ASubviewWithoutSizeGivesAlmostNothing) {
  add({});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{kSmallest, kSmallest}));
}

TEST_F(QavIntrinsicallySizedViewTest, CountsHiddenAndTransparentSubviews) {
  add({{0, 0}, {30, 30}})->setHidden(true);
  add({{0, 0}, {10, 50}})->setAlpha(0);
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{30, 50}));
}

TEST_F(QavIntrinsicallySizedViewTest, TransformsDoNotCount) {
  const auto subview = add({{10, 10}, {50, 20}});
  subview->setScaling(3);
  subview->setTranslation({100, 100});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{50, 20}));
}

TEST_F(QavIntrinsicallySizedViewTest, WhatOnlyMarksAPlaceDoesNotCount) {
  add<Guide>({{0, 0}, {300, 300}});
  EXPECT_EQ(view->intrinsicContentSize(), kNoIntrinsicSize);
  add({{10, 10}, {50, 20}});
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{50, 20}));
}

TEST_F(QavIntrinsicallySizedViewTest, FollowsSubviewsThatComeMoveGrowAndGo) {
  stand();
  const auto subview = add({{0, 0}, {50, 20}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{50, 20}));
  const auto second = add({{60, 0}, {10, 40}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{70, 40}));
  second->setFrame({{80, 0}, {10, 40}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{90, 40}));
  subview->setFrame({{0, 0}, {100, 60}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{100, 60}));
  subview->removeFromSuperview();
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{10, 40}));
}

TEST_F(QavIntrinsicallySizedViewTest, FollowsSubviewsThatConstraintsPlace) {
  stand();
  const auto label = std::make_shared<UILabel>();
  label->setFont(UIFont::systemFontOfSize(16));
  label->setText("1234567890");
  placed(view, label);
  qav_alignEdgesWithSuperview(label, UIRectEdge::top | UIRectEdge::left);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{80, 20}));
  label->setText("12345");
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size, (CGSize{40, 20}));
}

TEST_F(QavIntrinsicallySizedViewTest, SettlesInOnePassOfLayout) {
  stand();
  add({{0, 0}, {50, 20}});
  root->layoutIfNeeded();
  const FakeRenderer renderer(*root);
  root->layoutIfNeeded();
  EXPECT_EQ(renderer.scheduled, 0);
  add({{0, 0}, {60, 20}});
  EXPECT_EQ(renderer.scheduled, 1);
  root->layoutIfNeeded();
  EXPECT_EQ(renderer.scheduled, 1);
  EXPECT_EQ(view->frame().size, (CGSize{60, 20}));
}

}  // namespace
}  // namespace kindora
