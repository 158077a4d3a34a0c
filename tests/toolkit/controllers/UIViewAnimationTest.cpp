// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewAnimation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include "platform/fakes/FakeViewServices.h"
#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

class UIViewAnimationTest : public ::testing::Test {
 protected:
  // Nothing may go on into the next test.
  ~UIViewAnimationTest() override { time.advance(2); }

  [[nodiscard]] double shownAlpha() const { return view->presentation().alpha; }
  void fadeOut(UIViewAnimationTiming timing) {
    animateWithDuration(
        timing, [this] { view->setAlpha(0); }, [this] { ++completed; });
  }

  ManualTime time{std::make_shared<ManualQueue>()};
  const UIViewRef view = std::make_shared<UIView>();
  int completed = 0;
};

TEST_F(UIViewAnimationTest, TheChangeItselfHappensAtOnce) {
  fadeOut({.duration = 1});
  EXPECT_EQ(view->alpha(), 0);
  EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(UIViewAnimationTest, IsShownOverItsDuration) {
  fadeOut({.duration = 1, .curve = UIViewAnimationCurve::linear});
  time.advance(0.25);
  EXPECT_NEAR(shownAlpha(), 0.75, 0.002);
  time.advance(0.5);
  EXPECT_NEAR(shownAlpha(), 0.25, 0.002);
  time.advance(0.252);
  EXPECT_EQ(shownAlpha(), 0);
}

TEST_F(UIViewAnimationTest, CompletesOnceWhenAllHasBeenShown) {
  fadeOut({.duration = 0.5});
  time.advance(0.499);
  EXPECT_EQ(completed, 0);
  time.advance(0.003);
  EXPECT_EQ(completed, 1);
  EXPECT_EQ(shownAlpha(), 0);
  time.advance(1);
  EXPECT_EQ(completed, 1);
}

TEST_F(UIViewAnimationTest, NeedsNoCompletion) {
  animateWithDuration({.duration = 0.1}, [this] { view->setAlpha(0.5); });
  time.advance(0.2);
  EXPECT_EQ(shownAlpha(), 0.5);
}

TEST_F(UIViewAnimationTest, TheDelayComesFirst) {
  fadeOut({.duration = 0.25, .delay = 0.5});
  EXPECT_EQ(view->alpha(), 0);
  time.advance(0.5);
  EXPECT_EQ(shownAlpha(), 1);
  time.advance(0.1);
  EXPECT_LT(shownAlpha(), 1);
  time.advance(0.152);
  EXPECT_EQ(shownAlpha(), 0);
  EXPECT_EQ(completed, 1);
}

TEST_F(UIViewAnimationTest, WithoutAChangeItTakesItsTimeAllTheSame) {
  animateWithDuration(
      {.duration = 0.25}, [] {}, [this] { ++completed; });
  time.advance(0.24);
  EXPECT_EQ(completed, 0);
  time.advance(0.02);
  EXPECT_EQ(completed, 1);
}

TEST_F(UIViewAnimationTest, BeginsFromWhatIsShown) {
  fadeOut({.duration = 1, .curve = UIViewAnimationCurve::linear});
  time.advance(0.5);
  animateWithDuration({.duration = 1, .curve = UIViewAnimationCurve::linear},
                      [this] { view->setAlpha(1); });
  EXPECT_NEAR(shownAlpha(), 0.5, 0.002);
  time.advance(0.5);
  EXPECT_NEAR(shownAlpha(), 0.75, 0.003);
}

TEST_F(UIViewAnimationTest, ACompletionMayAnimateTheNextStep) {
  animateWithDuration(
      {.duration = 0.1}, [this] { view->setAlpha(0); },
      [this] {
        animateWithDuration(
            {.duration = 0.1}, [this] { view->setAlpha(1); }, [this] { ++completed; });
      });
  time.advance(0.205);
  EXPECT_EQ(shownAlpha(), 1);
  EXPECT_EQ(completed, 1);
}

TEST_F(UIViewAnimationTest, AViewThatHasGoneIsNoHarm) {
  auto passing = std::make_shared<UIView>();
  const std::weak_ptr<UIView> gone = passing;
  animateWithDuration(
      {.duration = 0.2}, [&] { passing->setAlpha(0); }, [this] { ++completed; });
  time.advance(0.1);
  passing.reset();
  EXPECT_TRUE(gone.expired());
  time.advance(0.15);
  EXPECT_EQ(completed, 1);
}

struct Curve {
  const char* name;
  UIViewAnimationCurve curve;
  double atQuarter;  // how far it has come then
};

class UIViewAnimationCurveTest : public UIViewAnimationTest,
                                 public ::testing::WithParamInterface<Curve> {};

TEST_P(UIViewAnimationCurveTest, HasComeThisFarAfterAQuarterOfItsTime) {
  fadeOut({.duration = 1, .curve = GetParam().curve});
  time.advance(0.25);
  EXPECT_NEAR(1 - shownAlpha(), GetParam().atQuarter, 0.003);
}

INSTANTIATE_TEST_SUITE_P(Curves, UIViewAnimationCurveTest,
                         ::testing::Values(Curve{"Linear", UIViewAnimationCurve::linear, 0.25},
                                           Curve{"EaseIn", UIViewAnimationCurve::easeIn, 0.0935},
                                           Curve{"EaseOut", UIViewAnimationCurve::easeOut, 0.3782},
                                           Curve{"EaseInOut", UIViewAnimationCurve::easeInOut,
                                                 0.1292}),
                         [](const auto& instance) { return std::string(instance.param.name); });

// --- Springs ---

TEST_F(UIViewAnimationTest, ASpringTakesTheCurvesPlace) {
  const UISpring spring{.dampingRatio = 0.5};
  animateWithDuration({.duration = 1, .spring = spring}, [this] { view->setScaling(2); });
  for (int i = 1; i <= 9; ++i) {
    time.advance(0.1);
    EXPECT_NEAR(view->presentation().scaling, 1 + springProgress(spring, 1, 0.1 * i), 0.02) << i;
  }
}

TEST_F(UIViewAnimationTest, ASpringOvershootsOnItsWay) {
  animateWithDuration({.duration = 1, .spring = UISpring{.dampingRatio = 0.5}},
                      [this] { view->setScaling(2); });
  double most = 0;
  for (int i = 0; i < 100; ++i) {
    time.advance(0.01);
    most = std::max(most, view->presentation().scaling);
  }
  EXPECT_GT(most, 2.1);
}

TEST_F(UIViewAnimationTest, ASpringEndsExactlyAtItsGoal) {
  animateWithDuration(
      {.duration = 1, .spring = UISpring{.dampingRatio = 0.5}}, [this] { view->setScaling(2); },
      [this] { ++completed; });
  time.advance(0.99);
  EXPECT_EQ(completed, 0);
  EXPECT_NE(view->presentation().scaling, 2);
  time.advance(0.012);
  EXPECT_EQ(completed, 1);
  EXPECT_EQ(view->presentation().scaling, 2);
}

TEST_F(UIViewAnimationTest, ASpringWaitsForItsDelay) {
  animateWithDuration({.duration = 1, .delay = 0.25, .spring = UISpring{}},
                      [this] { view->setScaling(2); });
  time.advance(0.25);
  EXPECT_EQ(view->presentation().scaling, 1);
  time.advance(0.02);
  EXPECT_GT(view->presentation().scaling, 1);
}

TEST_F(UIViewAnimationTest, APushedSpringSetsOutFaster) {
  const auto pushed = std::make_shared<UIView>();
  animateWithDuration({.duration = 1, .spring = UISpring{.dampingRatio = 1}},
                      [this] { view->setScaling(2); });
  animateWithDuration({.duration = 1, .spring = UISpring{.dampingRatio = 1, .initialVelocity = 10}},
                      [&pushed] { pushed->setScaling(2); });
  time.advance(0.05);
  EXPECT_GT(pushed->presentation().scaling, view->presentation().scaling + 0.2);
}

TEST_F(UIViewAnimationTest, WithoutMotionASpringOvershootsNothingAndTakesAsLong) {
  installFakeViewServices().looks->change({.reducedMotion = true});
  animateWithDuration(
      {.duration = 1, .spring = UISpring{.dampingRatio = 0.2}}, [this] { view->setScaling(2); },
      [this] { ++completed; });
  double before = 1;
  for (int i = 0; i < 99; ++i) {
    time.advance(0.01);
    EXPECT_GE(view->presentation().scaling, before);
    before = view->presentation().scaling;
  }
  EXPECT_LE(before, 2);
  EXPECT_EQ(completed, 0);
  time.advance(0.011);
  EXPECT_EQ(completed, 1);
  installFakeViewServices();
}

// --- Transitions ---

class UIViewTransitionTest : public ::testing::Test {
 protected:
  UIViewTransitionTest() {
    container->addSubview(below);
    container->addSubview(from);
    container->addSubview(above);
  }
  ~UIViewTransitionTest() override { time.advance(2); }

  void curl() {
    transitionFromView(from, to, 1, [this] { ++completed; });
  }

  ManualTime time{std::make_shared<ManualQueue>()};
  const UIViewRef container = std::make_shared<UIView>();
  const UIViewRef below = std::make_shared<UIView>();
  const UIViewRef from = std::make_shared<UIView>();
  const UIViewRef above = std::make_shared<UIView>();
  const UIViewRef to = std::make_shared<UIView>();
  int completed = 0;
};

TEST_F(UIViewTransitionTest, PutsTheNewViewDirectlyAboveTheOld) {
  curl();
  EXPECT_EQ(container->subviews(), (std::vector{below, from, to, above}));
}

TEST_F(UIViewTransitionTest, LaysTheNewViewOverTheOldLikeAPage) {
  curl();
  EXPECT_EQ(to->presentation().curl, 0);
  EXPECT_EQ(to->state().curl, 1);
  time.advance(0.5);
  EXPECT_NEAR(to->presentation().curl, 0.5, 0.01);
  EXPECT_EQ(from->presentation().curl, 1);
}

TEST_F(UIViewTransitionTest, WithoutMotionTheNewViewFadesIn) {
  installFakeViewServices().looks->change({.reducedMotion = true});
  curl();
  EXPECT_EQ(to->presentation().alpha, 0);
  EXPECT_EQ(to->alpha(), 1);
  time.advance(0.5);
  EXPECT_NEAR(to->presentation().alpha, 0.5, 0.01);
  EXPECT_EQ(to->presentation().curl, 1);
  time.advance(0.502);
  EXPECT_EQ(to->presentation().alpha, 1);
  EXPECT_EQ(completed, 1);
  installFakeViewServices();
}

TEST_F(UIViewTransitionTest, KeepsTheOldViewUntilThePageIsLaid) {
  curl();
  time.advance(0.99);
  EXPECT_EQ(from->superview(), container);
  EXPECT_EQ(completed, 0);
  time.advance(0.012);
  EXPECT_EQ(from->superview(), nullptr);
  EXPECT_EQ(to->presentation().curl, 1);
  EXPECT_EQ(completed, 1);
}

TEST_F(UIViewTransitionTest, TakesTheOldViewOutBeforeItCompletes) {
  bool there = true;
  transitionFromView(from, to, 0.1, [&] { there = from->superview() != nullptr; });
  time.advance(0.11);
  EXPECT_FALSE(there);
}

TEST_F(UIViewTransitionTest, NeedsNoCompletion) {
  transitionFromView(from, to, 0.1);
  time.advance(0.11);
  EXPECT_EQ(container->subviews(), (std::vector{below, to, above}));
}

TEST_F(UIViewTransitionTest, AViewThatStandsNowhereLeavesNoPlaceToTake) {
  const auto loose = std::make_shared<UIView>();
  transitionFromView(loose, to, 0.1, [this] { ++completed; });
  time.advance(0.11);
  EXPECT_EQ(to->superview(), nullptr);
  EXPECT_EQ(completed, 1);
}

// --- Numbers on their way ---

class ProgressAnimationTest : public ::testing::Test {
 protected:
  ProgressAnimation animation(double duration) {
    return {{.duration = duration, .curve = UIViewAnimationCurve::linear},
            [this](double done) { steps.push_back(done); },
            [this] { ++completed; }};
  }

  ManualTime time{std::make_shared<ManualQueue>()};
  std::vector<double> steps;
  int completed = 0;
};

TEST_F(ProgressAnimationTest, EndsWith1AndThenCompletes) {
  const ProgressAnimation running = animation(0.1);
  time.advance(0.05);
  ASSERT_FALSE(steps.empty());
  EXPECT_NEAR(steps.back(), 0.5, 0.02);
  time.advance(0.052);
  EXPECT_EQ(steps.back(), 1);
  EXPECT_EQ(completed, 1);
}

TEST_F(ProgressAnimationTest, NeverGoesBackwards) {
  const ProgressAnimation running = animation(0.1);
  time.advance(0.2);
  EXPECT_TRUE(std::ranges::is_sorted(steps));
}

TEST_F(ProgressAnimationTest, StopsWhenTheHandleGoes) {
  std::optional<ProgressAnimation> running = animation(0.1);
  time.advance(0.05);
  const std::size_t before = steps.size();
  running.reset();
  time.advance(0.2);
  EXPECT_EQ(steps.size(), before);
  EXPECT_EQ(completed, 0);
}

TEST_F(ProgressAnimationTest, AnotherInItsPlaceStopsIt) {
  ProgressAnimation running = animation(0.1);
  time.advance(0.05);
  running = {};
  time.advance(0.2);
  EXPECT_EQ(completed, 0);
}

TEST_F(ProgressAnimationTest, MovesWithItsHandle) {
  ProgressAnimation running = animation(0.1);
  const ProgressAnimation moved = std::move(running);
  time.advance(0.11);
  EXPECT_EQ(completed, 1);
}

TEST_F(ProgressAnimationTest, WithoutDurationItCompletesAfterTheCallThatBeganIt) {
  const ProgressAnimation running = animation(0);
  EXPECT_EQ(completed, 0);
  time.advance(0.002);
  EXPECT_EQ(completed, 1);
  EXPECT_EQ(steps.back(), 1);
}

TEST_F(ProgressAnimationTest, TheHandleMayGoInsideTheCompletion) {
  std::optional<ProgressAnimation> running;
  running.emplace(
      UIViewAnimationTiming{.duration = 0.1}, [](double) {},
      [&] {
        ++completed;
        running.reset();
      });
  time.advance(0.2);
  EXPECT_EQ(completed, 1);
  EXPECT_FALSE(running.has_value());
}

}  // namespace
}  // namespace kindora
