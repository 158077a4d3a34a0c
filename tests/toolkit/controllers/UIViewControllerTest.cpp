// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"
#include "toolkit/controllers/ViewHandle.h"

namespace kindora {
namespace {

class UIViewControllerTest : public ToolkitFixture {};

TEST_F(UIViewControllerTest, LoadsItsViewOnFirstUse) {
  const auto a = screen("a");
  EXPECT_FALSE(a->isViewLoaded());
  const auto view = a->view();
  EXPECT_NE(view, nullptr);
  EXPECT_TRUE(a->isViewLoaded());
  EXPECT_EQ(a->view(), view);
  EXPECT_EQ(log(), (Lines{"a: loads"}));
}

TEST_F(UIViewControllerTest, LoadsBeforeItAppears) {
  show(screen("a"));
  EXPECT_EQ(log(), (Lines{"a: loads", "a: will appear", "a: did appear"}));
}

TEST_F(UIViewControllerTest, IsVisibleBetweenItsCallbacks) {
  const auto a = screen("a");
  a->beginAppearanceTransition(true, true);
  EXPECT_FALSE(a->isVisible());
  a->endAppearanceTransition();
  EXPECT_TRUE(a->isVisible());
  a->beginAppearanceTransition(false, true);
  EXPECT_FALSE(a->isVisible());
}

TEST_F(UIViewControllerTest, EachCallbackComesOnce) {
  const auto a = screen("a");
  for (int i = 0; i < 2; ++i) a->beginAppearanceTransition(true, false);
  for (int i = 0; i < 2; ++i) a->endAppearanceTransition();
  for (int i = 0; i < 2; ++i) a->beginAppearanceTransition(false, false);
  for (int i = 0; i < 2; ++i) a->endAppearanceTransition();
  EXPECT_EQ(log(), (Lines{"a: loads", "a: will appear", "a: did appear", "a: will disappear",
                          "a: did disappear"}));
}

TEST_F(UIViewControllerTest, WhatIsHiddenDoesNotDisappear) {
  const auto a = screen("a");
  a->beginAppearanceTransition(false, false);
  a->endAppearanceTransition();
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UIViewControllerTest, AChangeThatTurnsRoundEndsWhereItTurnedTo) {
  const auto a = screen("a");
  a->beginAppearanceTransition(true, true);
  a->beginAppearanceTransition(false, true);
  a->endAppearanceTransition();
  EXPECT_EQ(log(), (Lines{"a: loads", "a: will appear, animated", "a: will disappear, animated",
                          "a: did disappear, animated"}));
}

TEST_F(UIViewControllerTest, TheTitleIsAlsoTheBars) {
  UIViewController controller;
  int changes = 0;
  QObject::connect(&controller, &UIViewController::titleChanged, [&changes] { ++changes; });
  controller.setTitle(QStringLiteral("Badges"));
  EXPECT_EQ(controller.title(), QStringLiteral("Badges"));
  EXPECT_EQ(controller.navigationItem()->title(), QStringLiteral("Badges"));
  EXPECT_EQ(changes, 1);
}

TEST_F(UIViewControllerTest, TheSameTitleAgainIsNoChange) {
  UIViewController controller;
  controller.setTitle(QStringLiteral("Badges"));
  int changes = 0;
  QObject::connect(&controller, &UIViewController::titleChanged, [&changes] { ++changes; });
  QObject::connect(controller.navigationItem(), &UINavigationItem::changed,
                   [&changes] { ++changes; });
  controller.setTitle(QStringLiteral("Badges"));
  EXPECT_EQ(changes, 0);
}

TEST_F(UIViewControllerTest, KnowsTheContainersThatHoldIt) {
  const auto a = screen("a");
  const auto navigation = makeViewController<UINavigationController>(a);
  const auto tabs =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{navigation});
  EXPECT_EQ(a->parentViewController(), navigation.get());
  EXPECT_EQ(a->navigationController(), navigation.get());
  EXPECT_EQ(a->tabBarController(), tabs.get());
  EXPECT_EQ(a->containmentRoot(), tabs.get());
}

TEST_F(UIViewControllerTest, AloneItIsItsOwnRoot) {
  const auto a = screen("a");
  EXPECT_EQ(a->navigationController(), nullptr);
  EXPECT_EQ(a->tabBarController(), nullptr);
  EXPECT_EQ(a->containmentRoot(), a.get());
}

TEST_F(UIViewControllerTest, OutlivesItsContainer) {
  const auto a = screen("a");
  auto navigation = makeViewController<UINavigationController>(a);
  navigation.reset();
  time.settle();
  EXPECT_EQ(a->navigationController(), nullptr);
}

TEST_F(UIViewControllerTest, FindsOutletsByName) {
  const auto a = screen("a");
  std::weak_ptr<UIView> outlet;
  connectOutlet(outlet, "picture", *a->view());
  EXPECT_EQ(a->outlet("picture"), outlet.lock());
  EXPECT_EQ(a->outlet("view"), a->view());
  EXPECT_EQ(a->outlet("another"), nullptr);
}

TEST_F(UIViewControllerTest, HasNowhereToGoBackTo) { EXPECT_FALSE(screen("a")->goBack()); }

TEST_F(UIViewControllerTest, AGuardedClosureRunsWhileTheControllerLives) {
  const auto a = screen("a");
  bool ran = false;
  a->guarded([&ran] { ran = true; })();
  EXPECT_TRUE(ran);
}

TEST_F(UIViewControllerTest, AGuardedClosureDoesNothingOnceTheControllerHasGone) {
  auto a = screen("a");
  bool ran = false;
  const auto closure = a->guarded([&ran] { ran = true; });
  a.reset();
  closure();
  EXPECT_FALSE(ran);
}

TEST_F(UIViewControllerTest, IsDeletedFromTheEventLoop) {
  auto a = screen("a");
  const QPointer<UIViewController> object = a.get();
  a.reset();
  EXPECT_FALSE(object.isNull());
  time.settle();
  EXPECT_TRUE(object.isNull());
}

TEST_F(UIViewControllerTest, ASegueWithoutAStoryboardStops) {
  EXPECT_DEATH(screen("a")->performSegueWithIdentifier("anywhere"),
               "fatal error: the screen has no segue \"anywhere\"");
}

TEST_F(UIViewControllerTest, AnUnconnectedOutletStopsWhenItIsUsed) {
  const std::weak_ptr<UIView> nothing;
  EXPECT_DEATH(static_cast<void>(connected(nothing)), "fatal error: an outlet is not connected");
}

// --- Views made in code ---

class CodeController final : public UIViewController {
 public:
  UIViewRef loadView() override { return std::make_shared<UIView>(); }
  void viewDidLayoutSubviews() override { ++layouts; }
  void didMoveToParentViewController(UIViewController* parent) override {
    parents.push_back(parent);
  }
  int layouts = 0;
  std::vector<UIViewController*> parents;
};

TEST_F(UIViewControllerTest, TheRootViewOfAStoryboardIsNamed) {
  EXPECT_EQ(screen("a")->view()->name(), "view");
}

TEST_F(UIViewControllerTest, MayMakeItsOwnRootView) {
  const auto a = makeViewController<CodeController>();
  EXPECT_TRUE(a->page().isEmpty());
  EXPECT_EQ(a->view()->placer(), UIViewPlacer::record);
  EXPECT_EQ(a->rootView().view, a->view());
  EXPECT_TRUE(a->page().path().endsWith(QStringLiteral("/RecordPage.qml")));
}

TEST_F(UIViewControllerTest, HearsOfEachLayoutOfItsView) {
  const auto a = makeViewController<CodeController>();
  a->loadViewIfNeeded();
  EXPECT_EQ(a->layouts, 0);
  a->view()->layoutIfNeeded();
  EXPECT_EQ(a->layouts, 1);
}

TEST_F(UIViewControllerTest, AViewThatOutlivesItsControllerTellsNobody) {
  class PassingController final : public UIViewController {
   public:
    explicit PassingController(int& layouts) : layouts_(layouts) {}
    void viewDidLayoutSubviews() override { ++layouts_; }

   private:
    int& layouts_;
  };
  int layouts = 0;
  auto a = std::make_unique<PassingController>(layouts);
  const auto view = a->view();
  a.reset();
  view->layoutIfNeeded();
  EXPECT_EQ(layouts, 0);
}

// --- Children ---

TEST_F(UIViewControllerTest, AChildAppearsWithItsParent) {
  const auto a = screen("a");
  const auto b = screen("b");
  a->addChildViewController(b);
  EXPECT_EQ(b->parentViewController(), a.get());
  EXPECT_EQ(a->childViewControllers(), std::vector<UIViewControllerRef>{b});
  EXPECT_EQ(log(), Lines{});
  show(a);
  EXPECT_EQ(log(), (Lines{"a: loads", "a: will appear", "b: loads", "b: will appear",
                          "a: did appear", "b: did appear"}));
}

TEST_F(UIViewControllerTest, AChildAddedToWhatIsVisibleAppearsAtOnce) {
  const auto a = screen("a");
  const auto b = screen("b");
  show(a);
  log();
  a->addChildViewController(b);
  EXPECT_EQ(log(), (Lines{"b: loads", "b: will appear", "b: did appear"}));
  b->removeFromParentViewController();
  EXPECT_EQ(log(), (Lines{"b: will disappear", "b: did disappear"}));
  EXPECT_EQ(b->parentViewController(), nullptr);
  EXPECT_TRUE(a->childViewControllers().empty());
}

TEST_F(UIViewControllerTest, AChildAddedWhileItsParentAppearsAppearsOnceWithIt) {
  class Adding final : public UIViewController {
   public:
    explicit Adding(UIViewControllerRef added) : child(std::move(added)) {}
    void viewWillAppear(bool /*animated*/) override { addChildViewController(child); }
    const UIViewControllerRef child;
  };
  show(makeViewController<Adding>(screen("b")));
  EXPECT_EQ(log(), (Lines{"b: loads", "b: will appear", "b: did appear"}));
}

TEST_F(UIViewControllerTest, AChildOfAnotherLeavesThatOne) {
  const auto a = screen("a");
  const auto b = screen("b");
  const auto child = makeViewController<CodeController>();
  a->addChildViewController(child);
  b->addChildViewController(child);
  b->addChildViewController(child);
  EXPECT_TRUE(a->childViewControllers().empty());
  EXPECT_EQ(b->childViewControllers().size(), 1u);
  EXPECT_EQ(child->parents, std::vector<UIViewController*>{nullptr});
}

TEST_F(UIViewControllerTest, AChildThatIsRemovedHearsThatItHasNoParent) {
  const auto a = screen("a");
  const auto child = makeViewController<CodeController>();
  a->addChildViewController(child);
  child->didMoveToParentViewController(a.get());
  child->removeFromParentViewController();
  child->removeFromParentViewController();
  EXPECT_EQ(child->parents, (std::vector<UIViewController*>{a.get(), nullptr}));
}

TEST_F(UIViewControllerTest, APageOfAStackIsNotRemovedAsAChild) {
  const auto a = screen("a");
  const auto stack = makeViewController<UINavigationController>(a);
  a->removeFromParentViewController();
  EXPECT_EQ(a->parentViewController(), stack.get());
}

TEST_F(UIViewControllerTest, AChildOutlivesItsParentAlone) {
  auto a = std::make_unique<CodeController>();
  const auto child = screen("b");
  a->addChildViewController(child);
  a.reset();
  EXPECT_EQ(child->parentViewController(), nullptr);
}

TEST_F(UIViewControllerTest, AChildPresentsAboveItsContainer) {
  const auto a = screen("a");
  const auto b = screen("b");
  a->addChildViewController(b);
  show(a);
  const auto c = screen("c");
  b->presentViewController(c, false);
  EXPECT_EQ(c->presentingViewController(), a.get());
}

// --- Windows ---

TEST_F(UIViewControllerTest, BelongsToTheWindowThatHoldsItsContainerOrPresenter) {
  const auto a = screen("a");
  const auto b = screen("b");
  const auto c = screen("c");
  EXPECT_EQ(a->window(), nullptr);
  window.setRootViewController(makeViewController<UINavigationController>(a));
  EXPECT_EQ(a->window(), &window);
  a->presentViewController(b, false);
  EXPECT_EQ(b->window(), &window);
  b->presentViewController(c, false);
  EXPECT_EQ(c->window(), &window);
  a->dismissViewController(false);
  EXPECT_EQ(b->window(), nullptr);
  const auto gone = window.rootViewController();
  window.setRootViewController(nullptr);
  EXPECT_EQ(a->window(), nullptr);
}

TEST_F(UIViewControllerTest, PresentsInItsOwnWindowWhicheverIsKey) {
  const auto a = screen("a");
  const auto b = screen("b");
  show(a);
  UIWindow other;
  other.setRootViewController(screen("c"));
  other.makeKeyAndVisible();
  a->presentViewController(b, false);
  EXPECT_EQ(window.presentations()->items(), std::vector<UIViewControllerRef>{b});
  EXPECT_EQ(other.presentations()->count(), 0);
}

}  // namespace
}  // namespace kindora
