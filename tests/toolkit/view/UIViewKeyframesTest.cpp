// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewAnimationBlock.h"

namespace kindora {
namespace {

// What keyframe animations show on a view of 20 x 10 points about (60, 45).
class UIViewKeyframesTest : public ::testing::Test {
 protected:
  UIViewKeyframesTest() {
    view->setFrame({{50, 40}, {20, 10}});
    view->setAlpha(0.5);
    changes = 0;
  }

  const UIViewRef view = std::make_shared<UIView>();
  int changes = 0;
  const Subscription subscription = view->observe([this] { ++changes; });
};

TEST_F(UIViewKeyframesTest, AreNoneAtTheStart) {
  EXPECT_EQ(view->keyframeValues(), UIViewKeyframeValues{});
}

TEST_F(UIViewKeyframesTest, ShowInPlaceOfTheStateWhichTheyLeave) {
  view->setKeyframeValues({.opacity = 0.1});
  EXPECT_EQ(view->presentation().alpha, 0.1);
  EXPECT_EQ(view->alpha(), 0.5);
}

TEST_F(UIViewKeyframesTest, APositionIsThatOfTheCentre) {
  view->setKeyframeValues({.position = CGPoint{100, 200}});
  EXPECT_EQ(view->presentation().frame, (CGRect{{90, 195}, {20, 10}}));
  EXPECT_EQ(view->frame(), (CGRect{{50, 40}, {20, 10}}));
}

TEST_F(UIViewKeyframesTest, WhatTheyDoNotNameShowsTheState) {
  view->setKeyframeValues({.position = CGPoint{100, 200}});
  EXPECT_EQ(view->presentation().alpha, 0.5);
  view->setKeyframeValues({.opacity = 1.0});
  EXPECT_EQ(view->presentation().frame, view->frame());
}

TEST_F(UIViewKeyframesTest, StayInFrontOfAChangeOfState) {
  view->setKeyframeValues({.opacity = 0.1, .position = CGPoint{100, 200}});
  view->setAlpha(0.9);
  view->setFrame({{0, 0}, {40, 40}});
  EXPECT_EQ(view->presentation().alpha, 0.1);
  EXPECT_EQ(view->presentation().frame, (CGRect{{80, 180}, {40, 40}}));
}

TEST_F(UIViewKeyframesTest, StayInFrontOfAnAnimationBlock) {
  const UIViewAnimationBlock block([&] { view->setAlpha(0); });
  view->setKeyframeValues({.opacity = 0.1});
  block.show(0.5);
  EXPECT_EQ(view->presentation().alpha, 0.1);
  view->setKeyframeValues({});
  EXPECT_EQ(view->presentation().alpha, 0.25);
}

TEST_F(UIViewKeyframesTest, StayInFrontOfAPlaceThatAStoryboardGives) {
  view->setKeyframeValues({.position = CGPoint{100, 200}});
  view->reportFrame({{0, 0}, {20, 20}});
  EXPECT_EQ(view->presentation().frame, (CGRect{{90, 190}, {20, 20}}));
}

TEST_F(UIViewKeyframesTest, WithoutThemTheStateShowsAgain) {
  const UIViewState before = view->presentation();
  view->setKeyframeValues({.opacity = 0.1, .position = CGPoint{1, 2}});
  view->setKeyframeValues({});
  EXPECT_EQ(view->presentation(), before);
}

TEST_F(UIViewKeyframesTest, AnAnimationBlockBeginsFromWhatTheyShow) {
  view->setKeyframeValues({.opacity = 0.1});
  const UIViewAnimationBlock block([&] { view->setAlpha(1); });
  view->setKeyframeValues({});
  block.show(0.5);
  EXPECT_DOUBLE_EQ(view->presentation().alpha, 0.55);
}

TEST_F(UIViewKeyframesTest, ATransformTakesThePlaceOfScaleAndDisplacement) {
  view->setScaling(0.5);
  view->setTranslation({7, 8});
  view->setKeyframeValues({.transform = CATransform3DMakeScale(2, 2, 1)});
  EXPECT_EQ(view->presentation().scaling, 1);
  EXPECT_EQ(view->presentation().translation, CGPoint{});
  view->setKeyframeValues({});
  EXPECT_EQ(view->presentation().scaling, 0.5);
  EXPECT_EQ(view->presentation().translation, (CGPoint{7, 8}));
}

TEST_F(UIViewKeyframesTest, ATransformIsKeptForWhoDrawsTheView) {
  const CATransform3D moved{.m41 = 7};
  view->setKeyframeValues({.transform = moved});
  EXPECT_EQ(view->keyframeValues().transform, moved);
  EXPECT_EQ(view->presentation().frame, view->frame());
}

TEST_F(UIViewKeyframesTest, AreToldOnce) {
  view->setKeyframeValues({.opacity = 0.1});
  view->setKeyframeValues({.opacity = 0.1});
  EXPECT_EQ(changes, 1);
  view->setKeyframeValues({});
  EXPECT_EQ(changes, 2);
}

// --- The animations that a view keeps ---

class Lasting final : public UIViewLayerAnimation {
 public:
  explicit Lasting(std::function<void()> gone) : gone_(std::move(gone)) {}
  ~Lasting() override { gone_(); }
  Lasting(const Lasting&) = delete;
  Lasting& operator=(const Lasting&) = delete;

 private:
  std::function<void()> gone_;
};

class UIViewLayerAnimationTest : public ::testing::Test {
 protected:
  void add(const char* key) {
    view->setLayerAnimation(key, std::make_shared<Lasting>([this] { ++gone; }));
  }

  int gone = 0;
  UIViewRef view = std::make_shared<UIView>();
};

TEST_F(UIViewLayerAnimationTest, IsKeptUnderItsKey) {
  add("opacity");
  EXPECT_NE(view->layerAnimation("opacity"), nullptr);
  EXPECT_EQ(view->layerAnimation("position"), nullptr);
  EXPECT_EQ(gone, 0);
}

TEST_F(UIViewLayerAnimationTest, AnotherKeyLeavesIt) {
  add("opacity");
  add("position");
  EXPECT_EQ(gone, 0);
}

TEST_F(UIViewLayerAnimationTest, AnotherOfItsKeyTakesItsPlace) {
  add("opacity");
  const auto first = std::weak_ptr(view->layerAnimation("opacity"));
  add("opacity");
  EXPECT_EQ(gone, 1);
  EXPECT_TRUE(first.expired());
  EXPECT_NE(view->layerAnimation("opacity"), nullptr);
}

TEST_F(UIViewLayerAnimationTest, NoneUnderAKeyTakesItAway) {
  add("opacity");
  view->setLayerAnimation("opacity", nullptr);
  EXPECT_EQ(gone, 1);
  EXPECT_EQ(view->layerAnimation("opacity"), nullptr);
}

TEST_F(UIViewLayerAnimationTest, TakingAwayWhatIsNotThereIsNoHarm) {
  view->setLayerAnimation("opacity", nullptr);
  EXPECT_EQ(view->layerAnimation("opacity"), nullptr);
}

TEST_F(UIViewLayerAnimationTest, ItsEndMayAskTheViewAboutWhatHasTakenItsPlace) {
  std::shared_ptr<UIViewLayerAnimation> seen;
  view->setLayerAnimation(
      "opacity", std::make_shared<Lasting>([&] { seen = view->layerAnimation("opacity"); }));
  add("opacity");
  EXPECT_NE(seen, nullptr);
  seen.reset();
  EXPECT_EQ(gone, 0);
}

TEST_F(UIViewLayerAnimationTest, GoesWithItsView) {
  add("opacity");
  add("position");
  view.reset();
  EXPECT_EQ(gone, 2);
}

}  // namespace
}  // namespace kindora
