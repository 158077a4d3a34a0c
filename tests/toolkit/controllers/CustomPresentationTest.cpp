// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/controllers/ToolkitFixture.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/controllers/UIViewControllerTransitionCoordinator.h"
#include "toolkit/controllers/UIViewControllerTransitioningDelegate.h"
#include "toolkit/controllers/ViewHandle.h"

namespace kindora {
namespace {

using Key = UITransitionContextViewControllerKey;
using Note = std::function<void(const std::string&)>;

constexpr double kDuration = 0.3;  // seconds

// A view beside the presented one that is faded in and out along with it.
class VeilController final : public UIPresentationController {
 public:
  VeilController(UIViewController* presented, UIViewController* presenting, Note note)
      : UIPresentationController(presented, presenting), note_(std::move(note)) {}

  void presentationTransitionWillBegin() override {
    note_("presentation begins");
    veil->setAlpha(0);
    containerView()->addSubview(veil);
    fade(1);
  }
  void presentationTransitionDidEnd(bool completed) override {
    note_(completed ? "presentation ended" : "presentation given up");
  }
  void dismissalTransitionWillBegin() override {
    note_("dismissal begins");
    fade(0);
  }
  void dismissalTransitionDidEnd(bool completed) override {
    note_(completed ? "dismissal ended" : "dismissal given up");
  }
  void containerViewWillLayoutSubviews() override {
    veil->setFrame(containerView()->frame());
    if (laysOut) laysOut();
  }

  std::function<void()> laysOut;  // besides

  const UIViewRef veil = std::make_shared<UIView>();

 private:
  void fade(double alpha) {
    presentedViewController()->transitionCoordinator()->animateAlongsideTransition(
        [this, alpha] { veil->setAlpha(alpha); }, [this] { note_("alongside ended"); });
  }
  Note note_;
};

// Fades in from alpha 0, or out.
class Fade final : public UIViewControllerAnimatedTransitioning {
 public:
  Fade(bool presents, bool completes) : presents_(presents), completes_(completes) {}

  double transitionDuration(const UITransitionContextRef& /*context*/) const override {
    return kDuration;
  }
  void animateTransition(const UITransitionContextRef& context) override {
    UIViewController* controller = context->viewControllerForKey(presents_ ? Key::to : Key::from);
    const auto view = controller->view();
    if (presents_) {
      context->containerView()->addSubview(view);
      view->setFrame(context->finalFrameForViewController(*controller));
      view->setAlpha(0);
    }
    animateWithDuration(
        {.duration = kDuration, .curve = UIViewAnimationCurve::linear},
        [&] { view->setAlpha(presents_ ? 1 : 0); },
        [context, completes = completes_] { context->completeTransition(completes); });
  }

 private:
  bool presents_;
  bool completes_;
};

class FadingDelegate final : public UIViewControllerTransitioningDelegate {
 public:
  explicit FadingDelegate(Note note) : note_(std::move(note)) {}

  std::shared_ptr<UIPresentationController> presentationControllerForPresentedViewController(
      UIViewController& presented, UIViewController& presentingViewController) override {
    controller = std::make_shared<VeilController>(&presented, &presentingViewController, note_);
    return controller;
  }
  std::shared_ptr<UIViewControllerAnimatedTransitioning> animationControllerForPresentedController(
      UIViewController& /*presented*/, UIViewController& /*presentingController*/) override {
    return animates ? std::make_shared<Fade>(true, completes) : nullptr;
  }
  std::shared_ptr<UIViewControllerAnimatedTransitioning> animationControllerForDismissedController(
      UIViewController& /*dismissed*/) override {
    return animates ? std::make_shared<Fade>(false, completes) : nullptr;
  }

  std::shared_ptr<VeilController> controller;
  bool animates = true;
  bool completes = true;

 private:
  Note note_;
};

// A screen made in code.
class CodeController final : public RecordingController {
 public:
  using RecordingController::RecordingController;
  UIViewRef loadView() override { return std::make_shared<UIView>(); }
  bool coversPresenter() const override { return UIViewController::coversPresenter(); }
  void viewDidAppear(bool animated) override {
    RecordingController::viewDidAppear(animated);
    if (shy) dismissViewController(false);
  }
  bool shy = false;
};

class CustomPresentationTest : public ToolkitFixture {
 protected:
  CustomPresentationTest() {
    window.reportSize(320, 480);
    show(tabs);
    p->setModalPresentationStyle(UIModalPresentationStyle::custom);
    p->setTransitioningDelegate(delegate);
    log();
  }

  std::function<void()> noted(const std::string& what) {
    return [this, what] { note(what); };
  }
  [[nodiscard]] UIViewRef container() { return p->presentationContainer().view; }
  [[nodiscard]] double veil() { return delegate->controller->veil->presentation().alpha; }
  [[nodiscard]] double shown() { return p->view()->presentation().alpha; }

  using Presented = std::vector<UIViewControllerRef>;
  const std::shared_ptr<FadingDelegate> delegate =
      std::make_shared<FadingDelegate>([this](const std::string& what) { note(what); });
  const std::shared_ptr<RecordingController> a = screen("a");
  std::shared_ptr<CodeController> p = makeViewController<CodeController>("p", logged());
  const std::shared_ptr<UITabBarController> tabs =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{a});
};

TEST_F(CustomPresentationTest, TheStyleHasThePhonesValues) {
  EXPECT_EQ(static_cast<int>(UIModalPresentationStyle::fullScreen), 0);
  EXPECT_EQ(static_cast<int>(UIModalPresentationStyle::custom), 4);
  EXPECT_EQ(a->modalPresentationStyle(), UIModalPresentationStyle::fullScreen);
}

TEST_F(CustomPresentationTest, TheDelegateIsHeldWeakly) {
  auto gone = std::make_shared<FadingDelegate>([](const std::string&) {});
  a->setTransitioningDelegate(gone);
  EXPECT_EQ(a->transitioningDelegate(), gone);
  gone.reset();
  EXPECT_EQ(a->transitioningDelegate(), nullptr);
}

// --- Coming ---

TEST_F(CustomPresentationTest, PutsThePresentedViewIntoAContainerAsLargeAsTheWindow) {
  a->presentViewController(p, true);
  ASSERT_NE(container(), nullptr);
  EXPECT_EQ(container()->frame(), (CGRect{{0, 0}, {320, 480}}));
  EXPECT_EQ(p->view()->superview(), container());
  EXPECT_EQ(p->view()->frame(), (CGRect{{0, 0}, {320, 480}}));
  EXPECT_EQ(window.presentations()->items(), (Presented{p}));
  EXPECT_FALSE(p->coversPresenter());
  EXPECT_TRUE(a->isVisible());
}

TEST_F(CustomPresentationTest, ThePresentationControllerKnowsBothControllers) {
  a->presentViewController(p, true);
  EXPECT_EQ(p->presentationController(), delegate->controller.get());
  EXPECT_EQ(p->presentationController()->presentedViewController(), p.get());
  EXPECT_EQ(p->presentationController()->presentingViewController(), tabs.get());
  EXPECT_EQ(p->presentationController()->presentedView(), p->view());
  EXPECT_EQ(a->presentationController(), nullptr);
}

TEST_F(CustomPresentationTest, ComesAsTheAnimatorShowsIt) {
  a->presentViewController(p, true);
  EXPECT_EQ(shown(), 0);
  time.advance(kDuration / 2);
  EXPECT_NEAR(shown(), 0.5, 0.02);
  time.advance(kDuration / 2 + 0.01);
  EXPECT_EQ(shown(), 1);
}

TEST_F(CustomPresentationTest, WhatMovesAlongsideTakesTheSameTime) {
  a->presentViewController(p, true);
  EXPECT_EQ(veil(), 0);
  time.advance(kDuration / 2);
  EXPECT_GT(veil(), 0.3);
  EXPECT_LT(veil(), 0.7);
  time.advance(kDuration / 2 + 0.001);
  EXPECT_EQ(veil(), 1);
}

TEST_F(CustomPresentationTest, TellsInOrderOnTheWayIn) {
  a->presentViewController(p, true, noted("presented"));
  EXPECT_EQ(log(), (Lines{"p: loads", "presentation begins", "p: will appear, animated"}));
  time.advance(kDuration - 0.01);
  EXPECT_EQ(log(), Lines{});
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"presentation ended", "alongside ended", "p: did appear, animated",
                          "presented"}));
}

TEST_F(CustomPresentationTest, WithoutAnimationItIsThereAtOnce) {
  a->presentViewController(p, false, noted("presented"));
  EXPECT_EQ(log(), (Lines{"p: loads", "presentation begins", "p: will appear", "presentation ended",
                          "alongside ended", "p: did appear", "presented"}));
  EXPECT_EQ(p->view()->superview(), container());
  EXPECT_EQ(p->view()->frame(), (CGRect{{0, 0}, {320, 480}}));
  EXPECT_EQ(shown(), 1);
  EXPECT_EQ(veil(), 1);
}

TEST_F(CustomPresentationTest, WithoutAnAnimatorItIsThereAtOnce) {
  delegate->animates = false;
  a->presentViewController(p, true);
  EXPECT_TRUE(p->isVisible());
  a->dismissViewController(true);
  EXPECT_EQ(window.presentations()->items(), Presented{});
}

TEST_F(CustomPresentationTest, ATransitionGivenUpPresentsNothing) {
  delegate->completes = false;
  a->presentViewController(p, true, noted("presented"));
  log();
  time.advance(1);
  EXPECT_EQ(log(), (Lines{"presentation given up", "alongside ended", "p: will disappear, animated",
                          "p: did disappear, animated"}));
  EXPECT_EQ(window.presentations()->items(), Presented{});
  EXPECT_EQ(a->presentedViewController(), nullptr);
  EXPECT_EQ(p->presentingViewController(), nullptr);
}

TEST_F(CustomPresentationTest, TheStyleAloneIsDrawnByThePage) {
  p->setTransitioningDelegate(nullptr);
  a->presentViewController(p, true);
  EXPECT_EQ(p->presentationController(), nullptr);
  EXPECT_EQ(container(), nullptr);
  EXPECT_EQ(p->presentedPage(), p->page());
  time.advance(0.5);
  EXPECT_TRUE(p->isVisible());
}

TEST_F(CustomPresentationTest, TheDelegateAloneChangesNothing) {
  p->setModalPresentationStyle(UIModalPresentationStyle::fullScreen);
  a->presentViewController(p, true);
  EXPECT_EQ(p->presentationController(), nullptr);
  EXPECT_TRUE(p->coversPresenter());
}

// --- The container ---

TEST_F(CustomPresentationTest, TheContainerFollowsTheWindow) {
  a->presentViewController(p, false);
  window.reportSize(480, 320);
  EXPECT_EQ(container()->frame(), (CGRect{{0, 0}, {480, 320}}));
  EXPECT_EQ(delegate->controller->veil->frame(), (CGRect{{0, 0}, {480, 320}}));
  EXPECT_EQ(p->view()->frame(), (CGRect{{0, 0}, {480, 320}}));
}

TEST_F(CustomPresentationTest, MayEndWhileTheContainerIsLaidOut) {
  a->presentViewController(p, false);
  delegate->controller->laysOut = [this] { a->dismissViewController(false); };
  window.reportSize(480, 320);
  EXPECT_EQ(a->presentedViewController(), nullptr);
}

TEST_F(CustomPresentationTest, RoomLeftForAKeyboardStays) {
  a->presentViewController(p, false);
  p->view()->setFrame({{0, 0}, {320, 300}});
  window.reportSize(320, 500);
  EXPECT_EQ(p->view()->frame(), (CGRect{{0, 0}, {320, 320}}));
}

TEST_F(CustomPresentationTest, IsDrawnByTheHostOfItsContainer) {
  const auto other = makeViewController<CodeController>("q", logged());
  a->presentViewController(p, false);
  EXPECT_TRUE(p->presentedPage().path().endsWith(QStringLiteral("/PresentationHost.qml")));
  EXPECT_TRUE(p->page().path().endsWith(QStringLiteral("/RecordPage.qml")));
  EXPECT_EQ(other->presentationContainer().view, nullptr);
}

// --- Going ---

TEST_F(CustomPresentationTest, TellsInOrderOnTheWayOut) {
  a->presentViewController(p, false);
  log();
  a->dismissViewController(true, noted("dismissed"));
  EXPECT_EQ(log(), (Lines{"dismissal begins", "p: will disappear, animated"}));
  time.advance(kDuration - 0.01);
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(window.presentations()->items(), (Presented{p}));
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"dismissal ended", "alongside ended", "p: did disappear, animated",
                          "dismissed"}));
  EXPECT_EQ(window.presentations()->items(), Presented{});
  EXPECT_EQ(p->view()->superview(), nullptr);
  EXPECT_EQ(p->presentationController(), nullptr);
  EXPECT_EQ(veil(), 0);
}

TEST_F(CustomPresentationTest, GoesWithoutAnimationAtOnce) {
  a->presentViewController(p, false);
  log();
  p->dismissViewController(false, noted("dismissed"));
  EXPECT_EQ(log(), (Lines{"dismissal begins", "p: will disappear", "dismissal ended",
                          "alongside ended", "p: did disappear", "dismissed"}));
  EXPECT_EQ(p->view()->superview(), nullptr);
}

TEST_F(CustomPresentationTest, ADismissalGivenUpLeavesItThere) {
  a->presentViewController(p, true);
  time.advance(1);
  delegate->completes = false;
  log();
  a->dismissViewController(true, noted("dismissed"));
  time.advance(1);
  EXPECT_EQ(log(),
            (Lines{"dismissal begins", "p: will disappear, animated", "dismissal given up",
                   "alongside ended", "p: will appear, animated", "p: did appear, animated"}));
  EXPECT_EQ(window.presentations()->items(), (Presented{p}));
  delegate->completes = true;
  a->dismissViewController(true, noted("dismissed"));
  time.advance(1);
  EXPECT_EQ(log().back(), "dismissed");
}

TEST_F(CustomPresentationTest, DismissedOnTheWayInItGoesFromWhereItIs) {
  a->presentViewController(p, true, noted("presented"));
  time.advance(kDuration / 2);
  const double reached = shown();
  log();
  a->dismissViewController(true, noted("dismissed"));
  EXPECT_EQ(log(), (Lines{"presentation ended", "alongside ended", "p: did appear, animated",
                          "presented", "dismissal begins", "p: will disappear, animated"}));
  EXPECT_EQ(shown(), reached);
  time.advance(kDuration / 2 + 0.05);
  EXPECT_EQ(log(), Lines{});  // the animator of the way in has ended, too late to count
  EXPECT_LT(shown(), reached);
  time.advance(kDuration);
  EXPECT_EQ(log(), (Lines{"dismissal ended", "alongside ended", "p: did disappear, animated",
                          "dismissed"}));
}

TEST_F(CustomPresentationTest, MayDismissItselfAsSoonAsItAppears) {
  p->shy = true;
  a->presentViewController(p, true, noted("presented"));
  time.advance(0.5);
  EXPECT_EQ(window.presentations()->items(), Presented{});
  EXPECT_EQ(log().back(), "presented");
}

TEST_F(CustomPresentationTest, ASecondDismissalJoinsTheFirst) {
  a->presentViewController(p, false);
  a->dismissViewController(true, noted("first"));
  time.advance(0.1);
  log();
  a->dismissViewController(false, noted("second"));
  EXPECT_EQ(log(), Lines{});
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{"dismissal ended", "alongside ended", "p: did disappear, animated",
                          "first", "second"}));
}

TEST_F(CustomPresentationTest, ACompletionMayPresentTheSameAgain) {
  a->presentViewController(p, false);
  a->dismissViewController(true, [this] { a->presentViewController(p, true); });
  time.advance(1);
  EXPECT_EQ(window.presentations()->items(), (Presented{p}));
  EXPECT_EQ(p->view()->superview(), container());
  EXPECT_EQ(shown(), 1);
}

TEST_F(CustomPresentationTest, LivesUntilItsCompletionsHaveRun) {
  a->presentViewController(p, false);
  const std::weak_ptr<UIViewController> watched = p;
  p.reset();
  bool alive = false;
  a->dismissViewController(true, [&] { alive = !watched.expired(); });
  time.advance(1);
  EXPECT_TRUE(alive);
  EXPECT_TRUE(watched.expired());
}

TEST_F(CustomPresentationTest, APresenterThatGoesOnTheWayTakesItAlong) {
  auto host = screen("host");
  auto other = std::make_unique<UIWindow>();
  other->setRootViewController(host);
  host->presentViewController(p, true);
  EXPECT_EQ(other->presentations()->items(), (Presented{p}));
  other->setRootViewController(nullptr);
  host.reset();
  time.settle();
  EXPECT_EQ(other->presentations()->items(), Presented{});
  time.advance(1);
  EXPECT_EQ(p->presentingViewController(), nullptr);
}

// --- Coordinators ---

TEST_F(CustomPresentationTest, BothSidesShareTheCoordinatorOfTheTransition) {
  EXPECT_EQ(a->transitionCoordinator(), nullptr);
  a->presentViewController(p, true);
  ASSERT_NE(p->transitionCoordinator(), nullptr);
  EXPECT_EQ(a->transitionCoordinator(), p->transitionCoordinator());
  EXPECT_EQ(p->transitionCoordinator()->transitionDuration(), kDuration);
  EXPECT_TRUE(p->transitionCoordinator()->isAnimated());
  time.advance(0.5);
  EXPECT_EQ(p->transitionCoordinator(), nullptr);
}

TEST_F(CustomPresentationTest, WhoComesLateToTheTransitionMovesFromThenOn) {
  a->presentViewController(p, true);
  const auto late = std::make_shared<UIView>();
  p->transitionCoordinator()->animateAlongsideTransition([&] { late->setAlpha(0); });
  EXPECT_EQ(late->presentation().alpha, 1);
  time.advance(0.5);
  EXPECT_EQ(late->presentation().alpha, 0);
}

}  // namespace
}  // namespace kindora
