// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/controllers/ToolkitFixture.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {
namespace {

// A tab that shows the screen "a"; the page "p" takes 0.4 seconds to come and to go.
class PresentationTest : public ToolkitFixture {
 protected:
  PresentationTest() {
    show(tabs);
    log();
  }

  [[nodiscard]] std::vector<UIViewControllerRef> presentations() {
    return window.presentations()->items();
  }
  std::function<void()> noted(const std::string& what) {
    return [this, what] { note(what); };
  }

  using Presented = std::vector<UIViewControllerRef>;
  const std::shared_ptr<RecordingController> a = screen("a");
  const std::shared_ptr<RecordingController> p = screen("p");
  const std::shared_ptr<RecordingController> q = screen("q");
  const std::shared_ptr<UITabBarController> tabs = makeViewController<UITabBarController>(
      std::vector<UIViewControllerRef>{makeViewController<UINavigationController>(a), screen("b")});
};

// --- Presenting ---

TEST_F(PresentationTest, PresentsAboveTheWholeContainer) {
  a->presentViewController(p, true);
  EXPECT_EQ(presentations(), (Presented{p}));
  EXPECT_EQ(a->presentedViewController(), p);
  EXPECT_EQ(tabs->presentedViewController(), p);
  EXPECT_EQ(p->presentingViewController(), tabs.get());
  EXPECT_EQ(p->parentViewController(), nullptr);
}

TEST_F(PresentationTest, ComesInWithinItsTime) {
  a->presentViewController(p, true);
  EXPECT_EQ(p->presentationProgress(), 0);
  time.advance(0.2);
  EXPECT_GT(p->presentationProgress(), 0);
  EXPECT_LT(p->presentationProgress(), 1);
  time.advance(0.21);
  EXPECT_EQ(p->presentationProgress(), 1);
}

TEST_F(PresentationTest, FramesTheWayInWithCallbacksAndThenCompletes) {
  a->presentViewController(p, true, noted("presented"));
  EXPECT_EQ(log(), (Lines{"p: loads", "a: will disappear, animated", "p: will appear, animated"}));
  time.advance(0.39);
  EXPECT_EQ(log(), (Lines{}));
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"a: did disappear, animated", "p: did appear, animated", "presented"}));
}

TEST_F(PresentationTest, WithoutAnimationAllOfThatHappensAtOnce) {
  a->presentViewController(p, false, noted("presented"));
  EXPECT_EQ(log(), (Lines{"p: loads", "a: will disappear", "p: will appear", "a: did disappear",
                          "p: did appear", "presented"}));
  EXPECT_EQ(p->presentationProgress(), 1);
}

TEST_F(PresentationTest, WhatDoesNotCoverLeavesThePresenterVisible) {
  p->covers = false;
  a->presentViewController(p, true);
  time.advance(0.5);
  EXPECT_EQ(log(), (Lines{"p: loads", "p: will appear, animated", "p: did appear, animated"}));
  EXPECT_TRUE(a->isVisible());
  a->dismissViewController(true);
  time.advance(0.5);
  EXPECT_EQ(log(), (Lines{"p: will disappear, animated", "p: did disappear, animated"}));
}

TEST_F(PresentationTest, ASecondPresentationIsIgnored) {
  a->presentViewController(p, true);
  a->presentViewController(q, true, noted("presented"));
  time.advance(1);
  EXPECT_EQ(presentations(), (Presented{p}));
  EXPECT_EQ(q->presentingViewController(), nullptr);
  EXPECT_FALSE(q->isViewLoaded());
  const Lines lines = log();
  EXPECT_EQ(std::ranges::find(lines, "presented"), lines.end());
}

TEST_F(PresentationTest, WhatIsOnItsWayOutIsStillPresented) {
  a->presentViewController(p, false);
  a->dismissViewController(true);
  a->presentViewController(q, true);
  time.advance(1);
  EXPECT_EQ(presentations(), (Presented{}));
}

TEST_F(PresentationTest, WhatIsPresentedMayPresent) {
  a->presentViewController(p, false);
  p->presentViewController(q, false);
  EXPECT_EQ(presentations(), (Presented{p, q}));
  EXPECT_EQ(p->presentedViewController(), q);
  EXPECT_EQ(a->presentedViewController(), p);
}

// --- Dismissing ---

TEST_F(PresentationTest, GoesWithinItsTime) {
  a->presentViewController(p, false);
  a->dismissViewController(true);
  EXPECT_EQ(presentations(), (Presented{p}));
  time.advance(0.2);
  EXPECT_GT(p->presentationProgress(), 0);
  EXPECT_LT(p->presentationProgress(), 1);
  time.advance(0.21);
  EXPECT_EQ(p->presentationProgress(), 0);
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_EQ(a->presentedViewController(), nullptr);
  EXPECT_EQ(p->presentingViewController(), nullptr);
}

TEST_F(PresentationTest, FramesTheWayOutWithCallbacksAndThenCompletes) {
  a->presentViewController(p, false);
  log();
  a->dismissViewController(true, noted("dismissed"));
  EXPECT_EQ(log(), (Lines{"p: will disappear, animated", "a: will appear, animated"}));
  time.advance(0.39);
  EXPECT_EQ(log(), (Lines{}));
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"p: did disappear, animated", "a: did appear, animated", "dismissed"}));
}

TEST_F(PresentationTest, ADismissalWithoutAnimationIsOverAtOnce) {
  a->presentViewController(p, false);
  log();
  a->dismissViewController(false, noted("dismissed"));
  EXPECT_EQ(log(), (Lines{"p: will disappear", "a: will appear", "p: did disappear",
                          "a: did appear", "dismissed"}));
  EXPECT_EQ(presentations(), (Presented{}));
}

TEST_F(PresentationTest, WhatIsPresentedDismissesItself) {
  a->presentViewController(p, false);
  p->dismissViewController(false, noted("dismissed"));
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_EQ(log().back(), "dismissed");
}

TEST_F(PresentationTest, WithNothingPresentedNothingHappens) {
  a->dismissViewController(true, noted("dismissed"));
  time.advance(1);
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(PresentationTest, ACompletionMayPresentAgain) {
  a->presentViewController(p, false);
  a->dismissViewController(true, [this] { a->presentViewController(q, true); });
  time.advance(0.5);
  EXPECT_EQ(presentations(), (Presented{q}));
}

TEST_F(PresentationTest, ASecondDismissalJoinsTheFirst) {
  a->presentViewController(p, false);
  log();
  a->dismissViewController(true, noted("first"));
  time.advance(0.1);
  a->dismissViewController(true, noted("second"));
  time.advance(0.31);
  EXPECT_EQ(log(),
            (Lines{"p: will disappear, animated", "a: will appear, animated",
                   "p: did disappear, animated", "a: did appear, animated", "first", "second"}));
}

TEST_F(PresentationTest, DismissedOnTheWayInItTurnsRoundThere) {
  a->presentViewController(p, true, noted("presented"));
  time.advance(0.1);
  const double reached = p->presentationProgress();
  log();
  a->dismissViewController(true, noted("dismissed"));
  EXPECT_EQ(p->presentationProgress(), reached);
  time.advance(0.5);
  EXPECT_EQ(log(), (Lines{"a: did disappear, animated", "p: did appear, animated", "presented",
                          "p: will disappear, animated", "a: will appear, animated",
                          "p: did disappear, animated", "a: did appear, animated", "dismissed"}));
  EXPECT_EQ(presentations(), (Presented{}));
}

TEST_F(PresentationTest, DismissedBeforeItsFirstStepItGoesAtOnce) {
  a->presentViewController(p, true);
  a->dismissViewController(true, noted("dismissed"));
  time.advance(0.1);
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_EQ(log().back(), "dismissed");
  EXPECT_TRUE(a->isVisible());
}

TEST_F(PresentationTest, TheCompletionOfThePresentationMayDismiss) {
  a->presentViewController(p, true, [this] { a->dismissViewController(false); });
  time.advance(0.5);
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_TRUE(a->isVisible());
}

TEST_F(PresentationTest, DismissedOnTheWayInItMayBeDismissedByItsCompletionToo) {
  a->presentViewController(p, true, [this] { a->dismissViewController(false); });
  time.advance(0.1);
  a->dismissViewController(true, noted("dismissed"));
  EXPECT_EQ(log().back(), "dismissed");
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_TRUE(a->isVisible());
}

TEST_F(PresentationTest, APageMayDismissItselfAsSoonAsItAppears) {
  class Shy final : public UIViewController {
    void viewDidAppear(bool /*animated*/) override { dismissViewController(false); }
  };
  a->presentViewController(makeViewController<Shy>(), true, noted("presented"));
  time.advance(0.5);
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_EQ(log().back(), "presented");
  EXPECT_TRUE(a->isVisible());
}

TEST_F(PresentationTest, WhatStandsAboveGoesWithIt) {
  a->presentViewController(p, false);
  p->presentViewController(q, false);
  a->dismissViewController(false);
  EXPECT_EQ(presentations(), (Presented{}));
  EXPECT_FALSE(q->isVisible());
  EXPECT_FALSE(p->isVisible());
  EXPECT_TRUE(a->isVisible());
}

TEST_F(PresentationTest, DismissingTheTopLeavesWhatIsBelow) {
  a->presentViewController(p, false);
  p->presentViewController(q, false);
  q->dismissViewController(false);
  EXPECT_EQ(presentations(), (Presented{p}));
  EXPECT_TRUE(p->isVisible());
}

TEST_F(PresentationTest, ADismissedPageIsReleased) {
  auto page = screen("page");
  const std::weak_ptr<UIViewController> gone = page;
  a->presentViewController(page, true);
  page.reset();
  time.advance(0.5);
  EXPECT_FALSE(gone.expired());
  a->dismissViewController(true);
  time.advance(0.5);
  EXPECT_TRUE(gone.expired());
}

TEST_F(PresentationTest, APresenterThatGoesTakesItsPresentationAlong) {
  auto host = screen("host");
  const std::weak_ptr<UIViewController> gone = host;
  host->presentViewController(p, true);
  host.reset();
  time.advance(1);
  EXPECT_TRUE(gone.expired());
  EXPECT_EQ(p->presentingViewController(), nullptr);
}

// --- Under a page that covers ---

TEST_F(PresentationTest, ATabSelectedUnderAPageAppearsWithTheDismissal) {
  a->presentViewController(p, false);
  log();
  tabs->setSelectedIndex(1);
  EXPECT_EQ(log(), (Lines{"b: loads"}));
  a->dismissViewController(false);
  EXPECT_EQ(log(),
            (Lines{"p: will disappear", "b: will appear", "p: did disappear", "b: did appear"}));
}

TEST_F(PresentationTest, TheWindowGoesBackInWhatIsOnTop) {
  a->navigationController()->pushViewController(screen("c"), false);
  const auto inner = makeViewController<UINavigationController>(screen("d"));
  a->presentViewController(inner, false);
  inner->pushViewController(screen("e"), false);
  EXPECT_TRUE(window.goBack());
  time.advance(0.5);
  EXPECT_EQ(inner->viewControllers().size(), 1u);
  EXPECT_FALSE(window.goBack());
  EXPECT_EQ(a->navigationController()->viewControllers().size(), 2u);
}

TEST_F(PresentationTest, AnEmptyWindowHasNowhereToGoBackTo) {
  UIWindow empty;
  EXPECT_FALSE(empty.goBack());
}

// --- Alerts ---

class AlertPresentationTest : public PresentationTest {
 protected:
  static std::shared_ptr<UIAlertController> alert() {
    return makeViewController<UIAlertController>("title", std::nullopt,
                                                 UIAlertControllerStyle::alert);
  }
};

TEST_F(AlertPresentationTest, AnAlertTellsNobodyThatTheyDisappear) {
  a->presentViewController(alert(), true);
  time.advance(0.5);
  EXPECT_TRUE(a->isVisible());
  a->dismissViewController(true);
  time.advance(0.5);
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(AlertPresentationTest, AnAlertTakes250MillisecondsToComeAndToGo) {
  const auto shown = alert();
  a->presentViewController(shown, true);
  time.advance(0.24);
  EXPECT_LT(shown->presentationProgress(), 1);
  time.advance(0.02);
  EXPECT_EQ(shown->presentationProgress(), 1);
  a->dismissViewController(true);
  time.advance(0.24);
  EXPECT_EQ(presentations(), (Presented{shown}));
  time.advance(0.02);
  EXPECT_EQ(presentations(), (Presented{}));
}

TEST_F(AlertPresentationTest, ASheetMayComeUpOverAPage) {
  a->presentViewController(p, false);
  const auto sheet = makeViewController<UIAlertController>("title", std::nullopt,
                                                           UIAlertControllerStyle::actionSheet);
  p->presentViewController(sheet, true);
  time.advance(0.5);
  EXPECT_EQ(presentations(), (Presented{p, sheet}));
  EXPECT_TRUE(p->isVisible());
}

}  // namespace
}  // namespace kindora
