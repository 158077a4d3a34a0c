// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UINavigationController.h"

#include <functional>
#include <string>
#include <utility>

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

// A stack that shows the screen "a".
class UINavigationControllerTest : public ToolkitFixture {
 protected:
  UINavigationControllerTest() {
    show(navigation);
    log();
  }

  void pushNow(const UIViewControllerRef& controller) {
    navigation->pushViewController(controller, false);
    log();
  }
  [[nodiscard]] std::vector<UIViewControllerRef> pages() const {
    return navigation->pages()->items();
  }
  [[nodiscard]] std::vector<UIViewControllerRef> stack() const {
    return navigation->viewControllers();
  }

  using Stack = std::vector<UIViewControllerRef>;
  const std::shared_ptr<RecordingController> a = screen("a");
  const std::shared_ptr<RecordingController> b = screen("b");
  const std::shared_ptr<RecordingController> c = screen("c");
  const std::shared_ptr<UINavigationController> navigation =
      makeViewController<UINavigationController>(a);
};

// A screen that does something while it is on its way in or out.
class BusyController final : public UIViewController {
 public:
  void viewWillAppear(bool /*animated*/) override {
    if (appears) std::exchange(appears, nullptr)();
  }
  void viewWillDisappear(bool /*animated*/) override {
    if (disappears) std::exchange(disappears, nullptr)();
  }
  std::function<void()> appears;
  std::function<void()> disappears;
};

// --- Changes inside changes ---

TEST_F(UINavigationControllerTest, AScreenMayLeaveWhileItArrives) {
  for (const bool outer : {false, true}) {
    for (const bool inner : {false, true}) {
      const auto busy = makeViewController<BusyController>();
      busy->appears = [this, inner] { navigation->popViewController(inner); };
      navigation->pushViewController(busy, outer);
      time.advance(1);
      EXPECT_EQ(stack(), (Stack{a}));
      EXPECT_EQ(pages(), (Stack{a}));
      EXPECT_TRUE(a->isVisible());
      EXPECT_FALSE(busy->isVisible());
      EXPECT_FALSE(navigation->isTransitioning());
      EXPECT_EQ(navigation->topProgress(), 1);
    }
  }
}

TEST_F(UINavigationControllerTest, AScreenMayPushAnotherWhileItLeaves) {
  for (const bool outer : {false, true}) {
    for (const bool inner : {false, true}) {
      const auto busy = makeViewController<BusyController>();
      pushNow(busy);
      busy->disappears = [this, inner] { navigation->pushViewController(b, inner); };
      navigation->popViewController(outer);
      time.advance(1);
      EXPECT_EQ(stack(), (Stack{a, b}));
      EXPECT_EQ(pages(), (Stack{a, b}));
      EXPECT_TRUE(b->isVisible());
      EXPECT_FALSE(a->isVisible());
      EXPECT_FALSE(navigation->isTransitioning());
      navigation->popToRootViewController(false);
    }
  }
}

// --- Pushing ---

TEST_F(UINavigationControllerTest, ShowsItsRoot) {
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_EQ(pages(), (Stack{a}));
  EXPECT_EQ(navigation->topViewController(), a);
  EXPECT_TRUE(a->isVisible());
  EXPECT_EQ(navigation->visibleChildren(), std::vector<UIViewController*>{a.get()});
}

TEST_F(UINavigationControllerTest, APushTakesEffectAtOnce) {
  navigation->pushViewController(b, true);
  EXPECT_EQ(stack(), (Stack{a, b}));
  EXPECT_EQ(pages(), (Stack{a, b}));
  EXPECT_EQ(b->navigationController(), navigation.get());
  EXPECT_TRUE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, AnAnimatedPushFramesTheWayInWithCallbacks) {
  navigation->pushViewController(b, true);
  EXPECT_EQ(log(), (Lines{"b: loads", "a: will disappear, animated", "b: will appear, animated"}));
  time.advance(0.34);
  EXPECT_EQ(log(), (Lines{}));
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"a: did disappear, animated", "b: did appear, animated"}));
  EXPECT_FALSE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, APushWithoutAnimationIsOverAtOnce) {
  navigation->pushViewController(b, false);
  EXPECT_EQ(log(), (Lines{"b: loads", "a: will disappear", "b: will appear", "a: did disappear",
                          "b: did appear"}));
  EXPECT_FALSE(navigation->isTransitioning());
  EXPECT_EQ(navigation->topProgress(), 1);
}

TEST_F(UINavigationControllerTest, ThePushedPageComesInFromTheSide) {
  navigation->pushViewController(b, true);
  EXPECT_EQ(navigation->topProgress(), 0);
  time.advance(0.1);
  EXPECT_GT(navigation->topProgress(), 0);
  EXPECT_LT(navigation->topProgress(), 1);
  EXPECT_EQ(navigation->barProgress(), navigation->topProgress());
  time.advance(0.3);
  EXPECT_EQ(navigation->topProgress(), 1);
}

TEST_F(UINavigationControllerTest, APushDuringAPushEndsTheFirst) {
  navigation->pushViewController(b, true);
  time.advance(0.1);
  log();
  navigation->pushViewController(c, true);
  EXPECT_EQ(log(), (Lines{"a: did disappear, animated", "b: did appear, animated", "c: loads",
                          "b: will disappear, animated", "c: will appear, animated"}));
  time.advance(0.4);
  EXPECT_EQ(log(), (Lines{"b: did disappear, animated", "c: did appear, animated"}));
}

TEST_F(UINavigationControllerTest, APushOutOfSightCallsNobody) {
  const auto d = screen("d");
  const auto hidden = makeViewController<UINavigationController>(d);
  hidden->pushViewController(b, true);
  EXPECT_EQ(log(), (Lines{"b: loads"}));
  time.advance(0.36);
  EXPECT_EQ(log(), (Lines{}));
  EXPECT_FALSE(hidden->isTransitioning());
}

TEST_F(UINavigationControllerTest, APushOutOfSightMovesOnWhileItsStackComesIntoSight) {
  const auto d = screen("d");
  const auto hidden = makeViewController<UINavigationController>(d);
  hidden->pushViewController(b, true);
  time.advance(0.1);
  hidden->beginAppearanceTransition(true, false);
  hidden->endAppearanceTransition();
  EXPECT_EQ(log(), (Lines{"b: loads", "b: will appear", "b: did appear"}));
  EXPECT_GT(hidden->topProgress(), 0);
  EXPECT_LT(hidden->topProgress(), 1);
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{}));
  EXPECT_EQ(hidden->topProgress(), 1);
}

// --- Popping ---

TEST_F(UINavigationControllerTest, AnAnimatedPopFramesTheWayOutWithCallbacks) {
  pushNow(b);
  navigation->popViewController(true);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_EQ(log(), (Lines{"b: will disappear, animated", "a: will appear, animated"}));
  time.advance(0.34);
  EXPECT_EQ(log(), (Lines{}));
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"b: did disappear, animated", "a: did appear, animated"}));
}

TEST_F(UINavigationControllerTest, APopWithoutAnimationIsOverAtOnce) {
  pushNow(b);
  navigation->popViewController(false);
  EXPECT_EQ(log(),
            (Lines{"b: will disappear", "a: will appear", "b: did disappear", "a: did appear"}));
  EXPECT_EQ(pages(), (Stack{a}));
}

TEST_F(UINavigationControllerTest, TheLeavingPageIsDrawnUntilItIsOut) {
  pushNow(b);
  navigation->popViewController(true);
  time.advance(0.2);
  EXPECT_EQ(pages(), (Stack{a, b}));
  EXPECT_LT(navigation->topProgress(), 1);
  EXPECT_NEAR(navigation->barProgress(), 1 - navigation->topProgress(), 1e-12);
  time.advance(0.2);
  EXPECT_EQ(pages(), (Stack{a}));
  EXPECT_EQ(navigation->topProgress(), 1);
  EXPECT_EQ(b->navigationController(), nullptr);
}

TEST_F(UINavigationControllerTest, TheRootIsNotPopped) {
  navigation->popViewController(true);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UINavigationControllerTest, PoppingToTheRootSkipsWhatLiesBetween) {
  pushNow(b);
  pushNow(c);
  navigation->popToRootViewController(true);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_EQ(pages(), (Stack{a, c}));
  EXPECT_EQ(b->navigationController(), nullptr);
  time.advance(0.4);
  EXPECT_EQ(log(), (Lines{"c: will disappear, animated", "a: will appear, animated",
                          "c: did disappear, animated", "a: did appear, animated"}));
}

TEST_F(UINavigationControllerTest, PoppingToTheRootAtTheRootDoesNothing) {
  navigation->popToRootViewController(true);
  EXPECT_EQ(log(), (Lines{}));
  EXPECT_FALSE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, PoppingToTheTopDoesNothing) {
  pushNow(b);
  navigation->popToViewController(*b, true);
  EXPECT_EQ(stack(), (Stack{a, b}));
  EXPECT_FALSE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, PoppingToAStrangerStops) {
  EXPECT_DEATH(navigation->popToViewController(*b, true),
               "fatal error: popping to a controller that is not in the stack");
}

TEST_F(UINavigationControllerTest, APopDuringAPushGoesBackFromWhereThePushEnds) {
  navigation->pushViewController(b, true);
  time.advance(0.1);
  navigation->popViewController(true);
  time.advance(0.4);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_TRUE(a->isVisible());
  EXPECT_EQ(b->navigationController(), nullptr);
}

TEST_F(UINavigationControllerTest, AScreenCanBePushedAgain) {
  pushNow(b);
  navigation->popViewController(false);
  log();
  navigation->pushViewController(b, false);
  EXPECT_EQ(log(),
            (Lines{"a: will disappear", "b: will appear", "a: did disappear", "b: did appear"}));
  EXPECT_EQ(b->navigationController(), navigation.get());
}

TEST_F(UINavigationControllerTest, APoppedScreenIsReleased) {
  auto d = screen("d");
  const std::weak_ptr<UIViewController> gone = d;
  navigation->pushViewController(d, false);
  d.reset();
  navigation->popViewController(true);
  EXPECT_FALSE(gone.expired());
  time.advance(0.4);
  EXPECT_TRUE(gone.expired());
}

TEST_F(UINavigationControllerTest, AWayThatIsUnderWayEndsWithTheController) {
  auto hidden = makeViewController<UINavigationController>(screen("d"));
  hidden->beginAppearanceTransition(true, false);
  hidden->endAppearanceTransition();
  hidden->pushViewController(b, true);
  const QPointer<UIViewController> gone = hidden.get();
  hidden.reset();
  time.advance(1);
  EXPECT_TRUE(gone.isNull());
  EXPECT_FALSE(b->isVisible());
}

// --- The way back ---

TEST_F(UINavigationControllerTest, FromTheRootThereIsNoWayBack) {
  EXPECT_FALSE(navigation->canGoBack());
  EXPECT_FALSE(navigation->goBack());
}

TEST_F(UINavigationControllerTest, TheRootMayHaveAWayBackOfItsOwn) {
  class Modal final : public UIViewController {
   public:
    bool goBack() override { return ++asked > 0; }
    int asked = 0;
  };
  const auto root = makeViewController<Modal>();
  const auto own = makeViewController<UINavigationController>(root);
  EXPECT_TRUE(own->goBack());
  EXPECT_EQ(root->asked, 1);
  own->pushViewController(b, false);
  EXPECT_TRUE(own->goBack());
  EXPECT_EQ(root->asked, 1);
}

TEST_F(UINavigationControllerTest, GoesBackAnimated) {
  pushNow(b);
  EXPECT_TRUE(navigation->canGoBack());
  EXPECT_TRUE(navigation->goBack());
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_TRUE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, DuringAChangeThereIsNoWayBack) {
  pushNow(b);
  navigation->pushViewController(c, true);
  EXPECT_FALSE(navigation->canGoBack());
  EXPECT_FALSE(navigation->goBack());
  time.advance(0.4);
  EXPECT_TRUE(navigation->canGoBack());
}

TEST_F(UINavigationControllerTest, AHiddenBackButtonIsNoWayBack) {
  pushNow(b);
  b->navigationItem()->setHidesBackButton(true);
  EXPECT_FALSE(navigation->canGoBack());
  EXPECT_FALSE(navigation->goBack());
  EXPECT_FALSE(navigation->beginBackGesture());
  EXPECT_EQ(stack(), (Stack{a, b}));
}

TEST_F(UINavigationControllerTest, OnlyTheTopPagesBackButtonCounts) {
  pushNow(b);
  b->navigationItem()->setHidesBackButton(true);
  pushNow(c);
  EXPECT_TRUE(navigation->canGoBack());
}

TEST_F(UINavigationControllerTest, TheProgramPopsWhateverTheBackButtonSays) {
  pushNow(b);
  b->navigationItem()->setHidesBackButton(true);
  navigation->popViewController(false);
  EXPECT_EQ(stack(), (Stack{a}));
}

TEST_F(UINavigationControllerTest, TellsThatTheWayBackHasChanged) {
  pushNow(b);
  int changes = 0;
  QObject::connect(navigation.get(), &UINavigationController::canGoBackChanged,
                   [&changes] { ++changes; });
  b->navigationItem()->setHidesBackButton(true);
  EXPECT_EQ(changes, 1);
}

TEST_F(UINavigationControllerTest, TheWindowGoesBackInIt) {
  pushNow(b);
  EXPECT_TRUE(window.goBack());
  EXPECT_EQ(stack(), (Stack{a}));
}

TEST_F(UINavigationControllerTest, TheWindowObeysAHiddenBackButton) {
  pushNow(b);
  b->navigationItem()->setHidesBackButton(true);
  EXPECT_FALSE(window.goBack());
  EXPECT_EQ(stack(), (Stack{a, b}));
}

// --- The back gesture ---

TEST_F(UINavigationControllerTest, AGestureBeginsTheChangeWithoutPopping) {
  pushNow(b);
  EXPECT_TRUE(navigation->beginBackGesture());
  EXPECT_EQ(log(), (Lines{"b: will disappear, animated", "a: will appear, animated"}));
  EXPECT_EQ(stack(), (Stack{a, b}));
  EXPECT_TRUE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, ThePageFollowsTheFinger) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.6);
  EXPECT_EQ(navigation->topProgress(), 0.6);
  navigation->moveBackGesture(1.5);
  EXPECT_EQ(navigation->topProgress(), 1);
  navigation->moveBackGesture(-1);
  EXPECT_EQ(navigation->topProgress(), 0);
}

TEST_F(UINavigationControllerTest, ACompletedGesturePops) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.5);
  log();
  navigation->endBackGesture(true);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_EQ(pages(), (Stack{a, b}));
  EXPECT_EQ(log(), (Lines{}));
  time.advance(0.2);
  EXPECT_EQ(log(), (Lines{"b: did disappear, animated", "a: did appear, animated"}));
  EXPECT_EQ(pages(), (Stack{a}));
  EXPECT_EQ(b->navigationController(), nullptr);
}

TEST_F(UINavigationControllerTest, TheRestOfACompletedGestureTakesItsShareOfTheTime) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.4);
  navigation->endBackGesture(true);
  time.advance(0.13);
  EXPECT_TRUE(navigation->isTransitioning());
  time.advance(0.02);
  EXPECT_FALSE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, ACancelledGestureTurnsTheCallbacksRound) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.7);
  log();
  navigation->endBackGesture(false);
  EXPECT_EQ(log(), (Lines{"a: will disappear, animated", "b: will appear, animated"}));
  time.advance(0.2);
  EXPECT_EQ(log(), (Lines{"a: did disappear, animated", "b: did appear, animated"}));
  EXPECT_EQ(stack(), (Stack{a, b}));
  EXPECT_EQ(navigation->topProgress(), 1);
  EXPECT_TRUE(navigation->canGoBack());
}

struct Release {
  const char* name;
  double stillIn;
  double speed;
  bool goesBack;
};

class UINavigationControllerReleaseTest : public UINavigationControllerTest,
                                          public ::testing::WithParamInterface<Release> {};

TEST_P(UINavigationControllerReleaseTest, GoesWhereThePageWouldComeToRest) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(GetParam().stillIn);
  navigation->releaseBackGesture(GetParam().speed);
  EXPECT_EQ(stack(), GetParam().goesBack ? Stack{a} : (Stack{a, b}));
}

INSTANTIATE_TEST_SUITE_P(Releases, UINavigationControllerReleaseTest,
                         ::testing::Values(Release{"FarOutAtRest", 0.59, 0, true},
                                           Release{"NotFarOutAtRest", 0.6, 0, false},
                                           Release{"HardlyOutAndFast", 0.95, 2, true},
                                           Release{"HardlyOutAndSlow", 0.95, 1, false},
                                           Release{"FarOutAndPushedBack", 0.3, -2, false},
                                           Release{"FarOutAndHeldAgainst", 0.3, -0.5, true}),
                         [](const auto& release) { return std::string(release.param.name); });

TEST_F(UINavigationControllerTest, TheWayBackShowsAsSoonAsItIsThereAndGoesAsSoonAsItIsNot) {
  EXPECT_FALSE(navigation->showsBackButton());
  navigation->pushViewController(b, true);
  EXPECT_TRUE(navigation->showsBackButton());
  EXPECT_FALSE(navigation->canGoBack());
  time.advance(0.5);
  EXPECT_TRUE(navigation->canGoBack());
  bool told = false;
  QObject::connect(navigation.get(), &UINavigationController::canGoBackChanged,
                   [&] { told = !navigation->showsBackButton(); });
  navigation->beginBackGesture();
  EXPECT_TRUE(navigation->showsBackButton());
  navigation->moveBackGesture(0.2);
  navigation->endBackGesture(true);
  EXPECT_TRUE(told);
}

TEST_F(UINavigationControllerTest, AGestureThatWentNowhereEndsAtOnce) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->endBackGesture(false);
  time.advance(0.1);
  EXPECT_FALSE(navigation->isTransitioning());
  EXPECT_TRUE(b->isVisible());
  EXPECT_FALSE(a->isVisible());
}

TEST_F(UINavigationControllerTest, AGestureToTheVeryEndPopsAtOnce) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0);
  navigation->endBackGesture(true);
  time.advance(0.1);
  EXPECT_EQ(pages(), (Stack{a}));
  EXPECT_TRUE(a->isVisible());
}

TEST_F(UINavigationControllerTest, FromTheRootNoGestureBegins) {
  EXPECT_FALSE(navigation->beginBackGesture());
  EXPECT_FALSE(navigation->isTransitioning());
}

TEST_F(UINavigationControllerTest, NoGestureBeginsDuringAChange) {
  pushNow(b);
  navigation->pushViewController(c, true);
  EXPECT_FALSE(navigation->beginBackGesture());
}

TEST_F(UINavigationControllerTest, MovingAndEndingWithoutAGestureDoNothing) {
  pushNow(b);
  navigation->moveBackGesture(0.5);
  navigation->endBackGesture(true);
  EXPECT_EQ(navigation->topProgress(), 1);
  EXPECT_EQ(stack(), (Stack{a, b}));
}

TEST_F(UINavigationControllerTest, ABackButtonHiddenDuringTheGestureCancelsIt) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.3);
  b->navigationItem()->setHidesBackButton(true);
  navigation->endBackGesture(true);
  time.advance(0.4);
  EXPECT_EQ(stack(), (Stack{a, b}));
  EXPECT_TRUE(b->isVisible());
}

TEST_F(UINavigationControllerTest, APushDuringAGestureCancelsIt) {
  pushNow(b);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.5);
  navigation->pushViewController(c, true);
  navigation->endBackGesture(true);
  time.advance(0.4);
  EXPECT_EQ(stack(), (Stack{a, b, c}));
  EXPECT_TRUE(c->isVisible());
  EXPECT_FALSE(b->isVisible());
  EXPECT_FALSE(a->isVisible());
}

TEST_F(UINavigationControllerTest, APopDuringAGestureTakesItOver) {
  pushNow(b);
  pushNow(c);
  navigation->beginBackGesture();
  navigation->moveBackGesture(0.5);
  navigation->popToRootViewController(true);
  time.advance(0.4);
  EXPECT_EQ(stack(), (Stack{a}));
  EXPECT_TRUE(a->isVisible());
  EXPECT_FALSE(b->isVisible());
}

// --- The bar ---

TEST_F(UINavigationControllerTest, PassesOnThatItsBarWantsToBeLaidOut) {
  int requests = 0;
  QObject::connect(navigation->navigationBar(), &UINavigationBar::layoutRequested,
                   [&requests] { ++requests; });
  navigation->navigationBar()->setNeedsLayout();
  EXPECT_EQ(requests, 1);
}

TEST_F(UINavigationControllerTest, TellsAChangedBackgroundOnce) {
  int changes = 0;
  QObject::connect(navigation.get(), &UINavigationController::backgroundColorChanged,
                   [&changes] { ++changes; });
  navigation->setBackgroundColor(UIColor::whiteColor());
  navigation->setBackgroundColor(UIColor::whiteColor());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(navigation->backgroundColor(), UIColor::whiteColor());
}

// --- What is seen ---

TEST_F(UINavigationControllerTest, TheTopIsVisibleUnlessSomethingIsPresented) {
  const auto top = navigation->topViewController();
  const auto presented = screen("presented");
  EXPECT_EQ(navigation->visibleViewController(), top);
  navigation->presentViewController(presented, false);
  EXPECT_EQ(navigation->visibleViewController(), presented);
  navigation->dismissViewController(false);
  EXPECT_EQ(navigation->visibleViewController(), top);
}

}  // namespace
}  // namespace kindora
