// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITabBarController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

// Two tabs, each with a stack of its own: "a" and "b".
class UITabBarControllerTest : public ToolkitFixture {
 protected:
  UITabBarControllerTest() {
    show(tabs);
    log();
  }

  const std::shared_ptr<RecordingController> a = screen("a");
  const std::shared_ptr<RecordingController> b = screen("b");
  const std::shared_ptr<UINavigationController> first =
      makeViewController<UINavigationController>(a);
  const std::shared_ptr<UINavigationController> second =
      makeViewController<UINavigationController>(b);
  const std::shared_ptr<UITabBarController> tabs =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{first, second});
};

TEST_F(UITabBarControllerTest, TheFirstTabIsSelected) {
  EXPECT_EQ(tabs->selectedIndex(), 0);
  EXPECT_TRUE(a->isVisible());
  EXPECT_FALSE(b->isViewLoaded());
  EXPECT_EQ(tabs->visibleChildren(), std::vector<UIViewController*>{first.get()});
}

TEST_F(UITabBarControllerTest, HoldsItsTabsInOrder) {
  EXPECT_EQ(tabs->viewControllers(), (std::vector<UIViewControllerRef>{first, second}));
  EXPECT_EQ(first->tabBarController(), tabs.get());
}

TEST_F(UITabBarControllerTest, SwitchingTellsWhatLeavesAndWhatComes) {
  tabs->setSelectedIndex(1);
  EXPECT_EQ(log(), (Lines{"a: will disappear", "b: loads", "b: will appear", "a: did disappear",
                          "b: did appear"}));
}

TEST_F(UITabBarControllerTest, SwitchingBackTellsItAgain) {
  tabs->setSelectedIndex(1);
  log();
  tabs->setSelectedIndex(0);
  EXPECT_EQ(log(),
            (Lines{"b: will disappear", "a: will appear", "b: did disappear", "a: did appear"}));
}

TEST_F(UITabBarControllerTest, TellsThatTheSelectionHasChanged) {
  int changes = 0;
  QObject::connect(tabs.get(), &UITabBarController::selectedIndexChanged,
                   [&changes] { ++changes; });
  tabs->setSelectedIndex(1);
  tabs->setSelectedIndex(1);
  EXPECT_EQ(changes, 1);
}

TEST_F(UITabBarControllerTest, AnIndexWithoutATabIsIgnored) {
  tabs->setSelectedIndex(2);
  tabs->setSelectedIndex(-1);
  EXPECT_EQ(tabs->selectedIndex(), 0);
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UITabBarControllerTest, SwitchingOutOfSightCallsNobody) {
  const auto c = screen("c");
  const auto d = screen("d");
  const auto hidden =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{c, d});
  hidden->setSelectedIndex(1);
  EXPECT_EQ(hidden->selectedIndex(), 1);
  EXPECT_EQ(log(), (Lines{"d: loads"}));
}

TEST_F(UITabBarControllerTest, PressingATabSelectsIt) {
  tabs->pressTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(UITabBarControllerTest, PressingTheSelectedTabPopsItToItsRoot) {
  first->pushViewController(screen("c"), false);
  first->pushViewController(screen("d"), false);
  tabs->pressTab(0);
  EXPECT_EQ(first->viewControllers().size(), 1u);
  EXPECT_TRUE(first->isTransitioning());
}

TEST_F(UITabBarControllerTest, PressingTheSelectedTabObeysAHiddenBackButton) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  c->navigationItem()->setHidesBackButton(true);
  tabs->pressTab(0);
  EXPECT_EQ(first->viewControllers().size(), 2u);
}

TEST_F(UITabBarControllerTest, PressingTheSelectedTabAtItsRootDoesNothing) {
  tabs->pressTab(0);
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UITabBarControllerTest, PressingATabThatIsNoStackAgainDoesNothing) {
  const auto c = screen("c");
  const auto plain = makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{c});
  plain->pressTab(0);
  EXPECT_EQ(plain->selectedIndex(), 0);
}

TEST_F(UITabBarControllerTest, ABarThatTakesNoInputIsNotPressed) {
  first->pushViewController(screen("c"), false);
  tabs->tabBar()->setUserInteractionEnabled(false);
  tabs->pressTab(1);
  tabs->pressTab(0);
  EXPECT_EQ(tabs->selectedIndex(), 0);
  EXPECT_EQ(first->viewControllers().size(), 2u);
}

TEST_F(UITabBarControllerTest, TheProgramSelectsWhateverTheBarTakes) {
  tabs->tabBar()->setUserInteractionEnabled(false);
  tabs->setSelectedIndex(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(UITabBarControllerTest, TellsOnceThatItsBarTakesNoInput) {
  int changes = 0;
  QObject::connect(tabs->tabBar(), &UITabBar::userInteractionEnabledChanged,
                   [&changes] { ++changes; });
  tabs->tabBar()->setUserInteractionEnabled(false);
  tabs->tabBar()->setUserInteractionEnabled(false);
  EXPECT_EQ(changes, 1);
}

TEST_F(UITabBarControllerTest, EachTabKeepsItsStack) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  tabs->pressTab(1);
  tabs->pressTab(0);
  EXPECT_EQ(first->topViewController(), c);
  EXPECT_TRUE(c->isVisible());
}

TEST_F(UITabBarControllerTest, GoesBackInTheSelectedTabOnly) {
  first->pushViewController(screen("c"), false);
  tabs->pressTab(1);
  EXPECT_FALSE(window.goBack());
  EXPECT_EQ(first->viewControllers().size(), 2u);
  tabs->pressTab(0);
  EXPECT_TRUE(window.goBack());
  EXPECT_EQ(first->viewControllers().size(), 1u);
}

TEST_F(UITabBarControllerTest, ATabLeftDuringAPushHidesBothPages) {
  const auto c = screen("c");
  first->pushViewController(c, true);
  time.advance(0.1);
  tabs->pressTab(1);
  time.advance(1);
  EXPECT_FALSE(a->isVisible());
  EXPECT_FALSE(c->isVisible());
  EXPECT_TRUE(b->isVisible());
}

TEST_F(UITabBarControllerTest, ATabLeftDuringAPopHidesBothPages) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  first->popViewController(true);
  time.advance(0.1);
  tabs->pressTab(1);
  time.advance(1);
  EXPECT_FALSE(a->isVisible());
  EXPECT_FALSE(c->isVisible());
}

TEST_F(UITabBarControllerTest, ATabLeftDuringTheBackGestureHidesBothPages) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  first->beginBackGesture();
  first->moveBackGesture(0.5);
  tabs->pressTab(1);
  first->endBackGesture(true);
  time.advance(1);
  EXPECT_FALSE(a->isVisible());
  EXPECT_FALSE(c->isVisible());
}

TEST_F(UITabBarControllerTest, LeavingTheTabCancelsTheBackGesture) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  first->beginBackGesture();
  first->moveBackGesture(0.5);
  tabs->pressTab(1);
  first->endBackGesture(true);
  time.advance(1);
  EXPECT_EQ(first->viewControllers().size(), 2u);
  EXPECT_FALSE(first->isTransitioning());
}

TEST_F(UITabBarControllerTest, AGestureCancelledInATabThatWasLeftShowsNothing) {
  const auto c = screen("c");
  first->pushViewController(c, false);
  first->beginBackGesture();
  first->moveBackGesture(0.5);
  tabs->pressTab(1);
  first->endBackGesture(false);
  time.advance(1);
  EXPECT_FALSE(a->isVisible());
  EXPECT_FALSE(c->isVisible());
  tabs->pressTab(0);
  EXPECT_TRUE(c->isVisible());
  EXPECT_FALSE(a->isVisible());
}

// --- Something laid over everything ---

class CoveredUITabBarControllerTest : public UITabBarControllerTest {
 protected:
  CoveredUITabBarControllerTest() {
    first->pushViewController(c, false);
    cover->setFillsSuperview(true);
    tabs->view()->addSubview(cover);
  }

  const std::shared_ptr<RecordingController> c = screen("c");
  const UIViewRef cover = std::make_shared<UIView>();
};

TEST_F(CoveredUITabBarControllerTest, NoTabIsPressed) {
  tabs->pressTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 0);
  tabs->pressTab(0);
  EXPECT_EQ(first->topViewController(), c);
}

TEST_F(CoveredUITabBarControllerTest, GoingBackIsSwallowed) {
  EXPECT_TRUE(window.goBack());
  EXPECT_EQ(first->topViewController(), c);
}

TEST_F(CoveredUITabBarControllerTest, TheProgramSelectsAllTheSame) {
  tabs->setSelectedIndex(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(CoveredUITabBarControllerTest, IsPressedAgainWhenTheCoverHasGone) {
  cover->removeFromSuperview();
  EXPECT_TRUE(window.goBack());
  EXPECT_EQ(first->topViewController(), a);
  tabs->pressTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(CoveredUITabBarControllerTest, ACoverThatTakesNoInputIsNone) {
  cover->setUserInteractionEnabled(false);
  tabs->pressTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(UITabBarControllerTest, ItsBarHasAControlForEachTab) {
  EXPECT_NE(tabs->tabBar()->outlet("tab0"), nullptr);
  EXPECT_NE(tabs->tabBar()->outlet("tab1"), nullptr);
  EXPECT_EQ(tabs->tabBar()->outlet("tab2"), nullptr);
}

}  // namespace
}  // namespace kindora
