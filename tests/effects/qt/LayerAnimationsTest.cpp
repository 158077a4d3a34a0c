// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/qt/LayerAnimations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "effects/keyframes/CAAnimationDelegate.h"
#include "effects/keyframes/TovCustomAnimation.h"
#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Keeps the flags that it is told.
class Ear final : public CAAnimationDelegate {
 public:
  std::vector<bool> heard;
  std::function<void()> then;
  void animationDidStop(CAKeyframeAnimation& /*animation*/, bool finished) override {
    heard.push_back(finished);
    if (then) then();
  }
};

// A view of alpha 0.5 about (50, 50), and animations of one second.
class LayerAnimationsTest : public ::testing::Test {
 protected:
  LayerAnimationsTest() {
    view->setFrame({{40, 40}, {20, 20}});
    view->setAlpha(0.5);
  }
  ~LayerAnimationsTest() override { time.advance(3); }

  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> animation(std::vector<NSValue> values) const {
    auto made = std::make_shared<CAKeyframeAnimation>();
    made->setValues(NSArray::arrayWithObjects(std::move(values)));
    made->setDuration(1);
    made->setDelegate(ear);
    return made;
  }
  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> numbers(std::vector<double> values) const {
    std::vector<NSValue> frames;
    for (const double value : values) frames.push_back(NSValue::numberWithDouble(value));
    return animation(std::move(frames));
  }
  void play(const CAKeyframeAnimation& which, const char* key = "opacity") {
    addAnimation(view, which, key);
  }
  // One that stays as it ended.
  static void stay(CAKeyframeAnimation& which) {
    which.setFillMode(CAMediaTimingFillMode::forwards);
    which.setRemovedOnCompletion(false);
  }
  [[nodiscard]] double shownAlpha() const { return view->presentation().alpha; }
  [[nodiscard]] CGPoint shownCentre() const { return centerOf(view->presentation().frame); }

  ManualTime time{std::make_shared<ManualQueue>()};
  const std::shared_ptr<Ear> ear = std::make_shared<Ear>();
  UIViewRef view = std::make_shared<UIView>();
};

// --- On what it acts ---

TEST_F(LayerAnimationsTest, MovesTheOpacity) {
  play(*numbers({0, 1}));
  EXPECT_EQ(shownAlpha(), 0);
  time.advance(0.25);
  EXPECT_NEAR(shownAlpha(), 0.25, 0.003);
  time.advance(0.5);
  EXPECT_NEAR(shownAlpha(), 0.75, 0.003);
}

TEST_F(LayerAnimationsTest, LeavesTheOpacityOfTheViewItself) {
  play(*numbers({0, 1}));
  time.advance(0.25);
  EXPECT_EQ(view->alpha(), 0.5);
}

TEST_F(LayerAnimationsTest, MovesThePosition) {
  play(*animation({NSValue::valueWithCGPoint({0, 100}), NSValue::valueWithCGPoint({100, 0})}),
       "position");
  EXPECT_EQ(shownCentre(), (CGPoint{0, 100}));
  time.advance(0.5);
  EXPECT_NEAR(shownCentre().x, 50, 0.3);
  EXPECT_NEAR(shownCentre().y, 50, 0.3);
  EXPECT_EQ(view->center(), (CGPoint{50, 50}));
}

TEST_F(LayerAnimationsTest, MovesAlongAPath) {
  const auto path = std::make_shared<UIBezierPath>();
  path->moveToPoint({0, 0});
  path->addQuadCurveToPoint({100, 0}, {50, 100});
  const auto flight = animation({});
  flight->setPath(path);
  play(*flight, "position");
  time.advance(0.5);
  EXPECT_NEAR(shownCentre().x, 50, 0.5);
  EXPECT_NEAR(shownCentre().y, 50, 0.5);
}

TEST_F(LayerAnimationsTest, MovesTheTransform) {
  play(*animation({NSValue::valueWithCATransform3D(CATransform3DIdentity),
                   NSValue::valueWithCATransform3D(CATransform3DMakeScale(3, 1, 1))}),
       "transform");
  time.advance(0.5);
  ASSERT_TRUE(view->keyframeValues().transform);
  EXPECT_NEAR(view->keyframeValues().transform->m11, 2, 0.01);
  time.advance(0.6);
  EXPECT_EQ(view->keyframeValues().transform, std::nullopt);
}

TEST_F(LayerAnimationsTest, ItsKeyPathComesBeforeTheKey) {
  const auto fade = numbers({0, 1});
  fade->setKeyPath("opacity");
  play(*fade, "appear");
  EXPECT_EQ(shownAlpha(), 0);
}

TEST_F(LayerAnimationsTest, AnUnknownPropertyShowsNothingAndEndsAllTheSame) {
  play(*numbers({0, 1}), "colour");
  time.advance(0.5);
  EXPECT_EQ(view->keyframeValues(), UIViewKeyframeValues{});
  time.advance(0.6);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, ValuesOfAnotherKindShowNothing) {
  play(*animation({NSValue::valueWithCGPoint({0, 0}), NSValue::valueWithCGPoint({1, 1})}));
  play(*numbers({0, 1}), "position");
  play(*animation({NSValue::valueWithCGSize({0, 0}), NSValue::valueWithCGSize({1, 1})}),
       "transform");
  time.advance(0.5);
  EXPECT_EQ(view->keyframeValues(), UIViewKeyframeValues{});
}

TEST_F(LayerAnimationsTest, TwoPropertiesMoveAtOnce) {
  play(*numbers({0, 1}));
  play(*animation({NSValue::valueWithCGPoint({0, 0}), NSValue::valueWithCGPoint({10, 10})}),
       "position");
  time.advance(0.5);
  EXPECT_NEAR(shownAlpha(), 0.5, 0.01);
  EXPECT_NEAR(shownCentre().x, 5, 0.1);
}

TEST_F(LayerAnimationsTest, FramesOfAnEngineAreSpreadOverTheDuration) {
  TovCustomAnimation steps;
  steps.setDuration(0.1);  // six frames, 0.02 s apart
  steps.setAnimationBlock(
      [](double t, double /*duration*/) { return NSValue::numberWithDouble(t * 60 / 10); });
  play(steps);
  time.advance(0.04);
  EXPECT_NEAR(shownAlpha(), 0.2, 0.01);
  time.advance(0.058);
  EXPECT_NEAR(shownAlpha(), 0.49, 0.02);
}

// --- The end ---

TEST_F(LayerAnimationsTest, EndsAfterItsDuration) {
  play(*numbers({0, 1}));
  time.advance(0.99);
  EXPECT_THAT(ear->heard, IsEmpty());
  time.advance(0.012);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, ShowsTheViewsOwnValueAgainWhenItHasEnded) {
  play(*numbers({0, 1}));
  time.advance(1.01);
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_EQ(view->layerAnimation("opacity"), nullptr);
}

TEST_F(LayerAnimationsTest, ShowsTheOwnValueWhenItsDelegateHears) {
  double then = -1;
  ear->then = [&] { then = shownAlpha(); };
  play(*numbers({0, 1}));
  time.advance(1.01);
  EXPECT_EQ(then, 0.5);
}

TEST_F(LayerAnimationsTest, StaysAtItsEndWhenToldTo) {
  const auto fade = numbers({0, 1});
  stay(*fade);
  play(*fade);
  time.advance(2);
  EXPECT_EQ(shownAlpha(), 1);
  EXPECT_THAT(ear->heard, ElementsAre(true));
  EXPECT_NE(view->layerAnimation("opacity"), nullptr);
}

TEST_F(LayerAnimationsTest, WhatStaysHidesLaterChangesOfTheView) {
  const auto fade = numbers({0, 1});
  stay(*fade);
  play(*fade);
  time.advance(2);
  view->setAlpha(0.1);
  EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(LayerAnimationsTest, WhatStaysWithoutFillingShowsTheOwnValue) {
  const auto fade = numbers({0, 1});
  fade->setRemovedOnCompletion(false);
  play(*fade);
  time.advance(1.01);
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, WhatIsTakenOffFillsNothing) {
  const auto fade = numbers({0, 1});
  fade->setFillMode(CAMediaTimingFillMode::forwards);
  play(*fade);
  time.advance(1.01);
  EXPECT_EQ(shownAlpha(), 0.5);
}

TEST_F(LayerAnimationsTest, PlaysAsOftenAsItIsTold) {
  const auto fade = numbers({0, 1});
  fade->setRepeatCount(2);
  play(*fade);
  time.advance(1.25);
  EXPECT_NEAR(shownAlpha(), 0.25, 0.003);
  EXPECT_THAT(ear->heard, IsEmpty());
  time.advance(0.76);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, OneThatRepeatsForEverGoesOn) {
  const auto fade = numbers({0, 1});
  fade->setRepeatCount(std::numeric_limits<double>::infinity());
  play(*fade);
  time.advance(0.25);
  EXPECT_NEAR(shownAlpha(), 0.25, 0.003);
  time.advance(3);
  EXPECT_NEAR(shownAlpha(), 0.25, 0.003);
  EXPECT_THAT(ear->heard, IsEmpty());
  removeAnimationForKey(*view, "opacity");
}

TEST_F(LayerAnimationsTest, WithoutFramesItEndsAtOnceAndTouchesNothing) {
  play(*numbers({}));
  EXPECT_EQ(view->keyframeValues(), UIViewKeyframeValues{});
  EXPECT_THAT(ear->heard, IsEmpty());  // not inside the call that begins it
  time.advance(0.005);
  EXPECT_THAT(ear->heard, ElementsAre(true));
  EXPECT_EQ(shownAlpha(), 0.5);
}

TEST_F(LayerAnimationsTest, WithoutADurationItEndsAtOnce) {
  const auto fade = numbers({0, 1});
  fade->setDuration(0);
  play(*fade);
  time.advance(0.005);
  EXPECT_THAT(ear->heard, ElementsAre(true));
  EXPECT_EQ(shownAlpha(), 0.5);
}

TEST_F(LayerAnimationsTest, ASingleFrameStandsAllTheTime) {
  play(*numbers({0.25}));
  time.advance(0.5);
  EXPECT_EQ(shownAlpha(), 0.25);
  time.advance(0.49);
  EXPECT_EQ(shownAlpha(), 0.25);
  time.advance(0.02);
  EXPECT_EQ(shownAlpha(), 0.5);
}

// --- Cut short ---

TEST_F(LayerAnimationsTest, ChangesOfTheAnimationDoNotReachWhatPlays) {
  const auto fade = numbers({0, 1});
  play(*fade);
  fade->setDuration(100);
  fade->setValues(NSArray::arrayWithObjects({}));
  time.advance(0.5);
  EXPECT_NEAR(shownAlpha(), 0.5, 0.01);
  time.advance(0.51);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, ARedirectedOneGoesOnAlongTheOtherPath) {
  const auto line = [](CGPoint from, CGPoint to) {
    auto path = std::make_shared<UIBezierPath>();
    path->moveToPoint(from);
    path->addQuadCurveToPoint(to, {(from.x + to.x) / 2, (from.y + to.y) / 2});
    return path;
  };
  const auto flight = animation({});
  flight->setPath(line({0, 0}, {100, 0}));
  play(*flight, "position");
  time.advance(0.25);
  redirectAnimationForKey(*view, "position", line({0, 0}, {0, 200}));
  EXPECT_NEAR(shownCentre().x, 0, 0.01);
  EXPECT_NEAR(shownCentre().y, 50, 1);
  time.advance(0.5);
  EXPECT_NEAR(shownCentre().y, 150, 1);
  EXPECT_THAT(ear->heard, IsEmpty());
  time.advance(0.3);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, RedirectingWhatIsNotThereIsNoHarm) {
  redirectAnimationForKey(*view, "position", std::make_shared<UIBezierPath>());
  EXPECT_EQ(shownCentre(), (CGPoint{50, 50}));
}

TEST_F(LayerAnimationsTest, AnotherOfItsKeyTakesItsPlace) {
  play(*numbers({0, 1}));
  time.advance(0.5);
  play(*numbers({1, 0}));
  EXPECT_THAT(ear->heard, ElementsAre(false));
  EXPECT_EQ(shownAlpha(), 1);
  time.advance(0.25);
  EXPECT_NEAR(shownAlpha(), 0.75, 0.003);
  time.advance(1);
  EXPECT_THAT(ear->heard, ElementsAre(false, true));
}

TEST_F(LayerAnimationsTest, TakenAwayItShowsTheOwnValueAndTellsUnfinished) {
  play(*numbers({0, 1}));
  time.advance(0.5);
  removeAnimationForKey(*view, "opacity");
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_EQ(view->keyframeValues(), UIViewKeyframeValues{});
  EXPECT_THAT(ear->heard, ElementsAre(false));
  time.advance(2);
  EXPECT_THAT(ear->heard, ElementsAre(false));
}

TEST_F(LayerAnimationsTest, TakingAwayWhatIsNotThereIsNoHarm) {
  removeAnimationForKey(*view, "opacity");
  EXPECT_THAT(ear->heard, IsEmpty());
}

TEST_F(LayerAnimationsTest, WhatStayedIsTakenAwayWithoutAWord) {
  const auto fade = numbers({0, 1});
  stay(*fade);
  play(*fade);
  time.advance(2);
  removeAnimationForKey(*view, "opacity");
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, TellsUnfinishedWhenTheViewGoes) {
  play(*numbers({0, 1}));
  time.advance(0.5);
  view.reset();
  EXPECT_THAT(ear->heard, ElementsAre(false));
  time.advance(2);
  EXPECT_THAT(ear->heard, ElementsAre(false));
}

TEST_F(LayerAnimationsTest, DoesNotKeepItsView) {
  const auto fade = numbers({0, 1});
  stay(*fade);
  play(*fade);
  const std::weak_ptr<UIView> gone = view;
  view.reset();
  EXPECT_TRUE(gone.expired());
}

TEST_F(LayerAnimationsTest, TheViewMayGoWhenTheDelegateHears) {
  const auto fade = numbers({0, 1});
  stay(*fade);
  ear->then = [this] { view.reset(); };
  play(*fade);
  time.advance(2);
  EXPECT_EQ(view, nullptr);
  EXPECT_THAT(ear->heard, ElementsAre(true));
}

TEST_F(LayerAnimationsTest, TheDelegateMayBeginTheNextUnderTheSameKey) {
  ear->then = [this] {
    ear->then = {};
    play(*numbers({1, 0}));
  };
  play(*numbers({0, 1}));
  time.advance(1.01);
  EXPECT_GT(shownAlpha(), 0.9);
  time.advance(1.01);
  EXPECT_THAT(ear->heard, ElementsAre(true, true));
  EXPECT_EQ(shownAlpha(), 0.5);
}

TEST_F(LayerAnimationsTest, NobodyNeedsToHear) {
  const auto fade = numbers({0, 1});
  fade->setDelegate({});
  play(*fade);
  time.advance(1.01);
  EXPECT_EQ(shownAlpha(), 0.5);
}

// --- Transactions ---

TEST_F(LayerAnimationsTest, ATransactionIsOverWhenItsLastAnimationIs) {
  const auto shorter = numbers({0, 1});
  shorter->setDuration(0.5);
  int completed = 0;
  performInAnimationTransaction(
      [&] {
        play(*shorter, "opacity");
        play(*numbers({0, 1}), "position");
      },
      [&] { ++completed; });
  time.advance(0.9);
  EXPECT_EQ(completed, 0);
  time.advance(0.2);
  EXPECT_EQ(completed, 1);
}

TEST_F(LayerAnimationsTest, ATransactionWithoutAnimationsIsOverAtOnce) {
  int completed = 0;
  performInAnimationTransaction([] {}, [&] { ++completed; });
  EXPECT_EQ(completed, 1);
}

TEST_F(LayerAnimationsTest, WhatIsAddedAfterATransactionIsNotWaitedFor) {
  int completed = 0;
  const auto shorter = numbers({0, 1});
  shorter->setDuration(0.5);
  performInAnimationTransaction([&] { play(*shorter); }, [&] { ++completed; });
  play(*numbers({0, 1}), "position");
  time.advance(0.6);
  EXPECT_EQ(completed, 1);
}

TEST_F(LayerAnimationsTest, AnAnimationThatIsTakenAwayDoesNotHoldATransactionUp) {
  int completed = 0;
  performInAnimationTransaction([&] { play(*numbers({0, 1})); }, [&] { ++completed; });
  removeAnimationForKey(*view, "opacity");
  EXPECT_EQ(completed, 1);
}

TEST_F(LayerAnimationsTest, AnAnimationBelongsToTheInnermostTransaction) {
  std::vector<std::string> over;
  performInAnimationTransaction(
      [&] {
        performInAnimationTransaction(
            [&] {
              play(*numbers({0, 1}));
            },
            [&] { over.emplace_back("inner"); });
      },
      [&] { over.emplace_back("outer"); });
  EXPECT_THAT(over, ElementsAre("outer"));
  time.advance(1.1);
  EXPECT_THAT(over, ElementsAre("outer", "inner"));
}

}  // namespace
}  // namespace kindora
