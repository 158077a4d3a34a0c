// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/CurrentViewController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

class CurrentViewControllerTest : public ToolkitFixture {
 protected:
  static std::shared_ptr<UINavigationController> stackOf(const UIViewControllerRef& root) {
    return makeViewController<UINavigationController>(root);
  }

  const std::shared_ptr<RecordingController> a = screen("a");
  const std::shared_ptr<RecordingController> b = screen("b");
  const std::shared_ptr<RecordingController> c = screen("c");
  const std::shared_ptr<RecordingController> d = screen("d");
};

TEST_F(CurrentViewControllerTest, WithoutAKeyWindowThereIsNone) {
  EXPECT_EQ(qav_currentViewController(), nullptr);
}

TEST_F(CurrentViewControllerTest, WithoutARootThereIsNone) {
  window.makeKeyAndVisible();
  EXPECT_EQ(qav_currentViewController(), nullptr);
  EXPECT_EQ(qav_topViewControllerForViewController(nullptr), nullptr);
}

TEST_F(CurrentViewControllerTest, IsTheRootByItself) {
  show(a);
  EXPECT_EQ(qav_currentViewController(), a);
}

TEST_F(CurrentViewControllerTest, IsTheTopOfAStack) {
  const auto stack = stackOf(a);
  stack->pushViewController(b, false);
  show(stack);
  EXPECT_EQ(qav_currentViewController(), b);
}

TEST_F(CurrentViewControllerTest, IsTheLastOfAChainOfModals) {
  show(a);
  a->presentViewController(b, false);
  b->presentViewController(c, false);
  c->presentViewController(d, false);
  EXPECT_EQ(qav_currentViewController(), d);
  EXPECT_EQ(qav_topViewControllerForViewController(b), d);
}

TEST_F(CurrentViewControllerTest, IsWhatANavigationControllerPresentsRatherThanItsTop) {
  const auto stack = stackOf(a);
  stack->pushViewController(b, false);
  show(stack);
  stack->presentViewController(c, false);
  EXPECT_EQ(qav_currentViewController(), c);
  c->presentViewController(d, false);
  EXPECT_EQ(qav_currentViewController(), d);
}

TEST_F(CurrentViewControllerTest, IsTheTopOfAStackThatIsPresented) {
  const auto stack = stackOf(b);
  stack->pushViewController(c, false);
  show(a);
  a->presentViewController(stack, false);
  EXPECT_EQ(qav_currentViewController(), c);
}

TEST_F(CurrentViewControllerTest, DoesNotEnterTabs) {
  const auto tabs =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{stackOf(a), b});
  show(tabs);
  EXPECT_EQ(qav_currentViewController(), tabs);
}

TEST_F(CurrentViewControllerTest, FollowsWhatATabPresents) {
  const auto tabs =
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{stackOf(a), b});
  show(tabs);
  a->presentViewController(c, false);
  EXPECT_EQ(qav_currentViewController(), c);
  EXPECT_EQ(qav_topViewControllerForViewController(tabs), c);
}

TEST_F(CurrentViewControllerTest, FollowsTheKeyWindow) {
  show(a);
  UIWindow other;
  other.setRootViewController(b);
  other.makeKeyAndVisible();
  EXPECT_EQ(qav_currentViewController(), b);
  window.makeKeyAndVisible();
  EXPECT_EQ(qav_currentViewController(), a);
}

}  // namespace
}  // namespace kindora
