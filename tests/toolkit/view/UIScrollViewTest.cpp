// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIScrollView.h"

#include <gtest/gtest.h>

#include <memory>

namespace kindora {
namespace {

// A window of 100 x 50 points on content of 100 x 200.
class UIScrollViewTest : public ::testing::Test {
 protected:
  UIScrollViewTest() {
    view->setFrame({{10, 10}, {100, 50}});
    view->setContentSize({100, 200});
  }
  const std::shared_ptr<UIScrollView> view = std::make_shared<UIScrollView>();
};

TEST_F(UIScrollViewTest, CutsOffWhatIsScrolledAway) { EXPECT_TRUE(view->clipsToBounds()); }

TEST_F(UIScrollViewTest, IsScrolledNoFurtherThanTheContentReaches) {
  view->setContentOffset({5, 60});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 60}));
  view->setContentOffset({0, 1000});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 150}));
  view->setContentOffset({0, -1});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 0}));
}

TEST_F(UIScrollViewTest, ShorterContentScrollsBack) {
  view->setContentOffset({0, 150});
  view->setContentSize({100, 120});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 70}));
  view->setContentSize({100, 20});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 0}));
}

TEST_F(UIScrollViewTest, ALargerWindowScrollsBack) {
  view->setContentOffset({0, 150});
  view->setFrame({{10, 10}, {100, 90}});
  view->layoutIfNeeded();
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 110}));
}

TEST_F(UIScrollViewTest, MovesAsLittleAsItTakesToShowAPart) {
  view->scrollRectToVisible({{0, 60}, {10, 20}});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 30}));
  view->scrollRectToVisible({{0, 40}, {10, 20}});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 30}));
  view->scrollRectToVisible({{0, 10}, {10, 20}});
  EXPECT_EQ(view->contentOffset(), (CGPoint{0, 10}));
}

TEST_F(UIScrollViewTest, TellsThatItWasScrolledOnlyWhenItWas) {
  int changes = 0;
  const auto subscription = view->observe([&] { ++changes; });
  view->setContentOffset({0, 20});
  view->setContentOffset({0, 20});
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
