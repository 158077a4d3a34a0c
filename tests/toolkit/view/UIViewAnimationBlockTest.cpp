// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAnimationBlock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <vector>

#include "platform/Subscription.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

// A view that lies where the one before did.
UIViewRef viewAtOnePlace() {
  alignas(UIView) static std::array<std::byte, sizeof(UIView)> place;
  return {new (place.data()) UIView, std::destroy_at<UIView>};
}

class UIViewAnimationBlockTest : public ::testing::Test {
 protected:
  [[nodiscard]] double shownAlpha() const { return view->presentation().alpha; }

  const UIViewRef view = std::make_shared<UIView>();
  const UIViewRef other = std::make_shared<UIView>();
};

TEST_F(UIViewAnimationBlockTest, ChangesTakeEffectButDoNotShow) {
  const UIViewAnimationBlock block([&] { view->setAlpha(0); });
  EXPECT_EQ(view->alpha(), 0);
  EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(UIViewAnimationBlockTest, ShowsTheWay) {
  const UIViewAnimationBlock block([&] { view->setAlpha(0); });
  block.show(0.25);
  EXPECT_EQ(shownAlpha(), 0.75);
  block.show(1);
  EXPECT_EQ(shownAlpha(), 0);
}

TEST_F(UIViewAnimationBlockTest, MovesEveryViewThatChanged) {
  const UIViewAnimationBlock block([&] {
    view->setAlpha(0);
    other->setTranslation({0, 10});
  });
  block.show(0.5);
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_EQ(other->presentation().translation, (CGPoint{0, 5}));
}

TEST_F(UIViewAnimationBlockTest, SeveralChangesOfAViewAreOneWay) {
  const UIViewAnimationBlock block([&] {
    view->setAlpha(0.5);
    view->setAlpha(0);
    view->setCornerRadius(40);
  });
  block.show(0.5);
  EXPECT_EQ(shownAlpha(), 0.5);
  EXPECT_EQ(view->presentation().cornerRadius, 20);
}

TEST_F(UIViewAnimationBlockTest, ALayoutIsAChangeToo) {
  view->layoutIfNeeded();
  view->addConstraint(std::make_shared<NSLayoutConstraint>());
  const UIViewAnimationBlock block([&] { view->layoutIfNeeded(); });
  EXPECT_EQ(view->state().layout, 1);
  EXPECT_EQ(view->presentation().layout, 0);
  block.show(0.5);
  EXPECT_EQ(view->presentation().layout, 0.5);
}

TEST_F(UIViewAnimationBlockTest, AViewThatDidNotChangeIsLeftAlone) {
  const UIViewAnimationBlock block([&] { view->setAlpha(1); });
  view->setPresentation({.alpha = 0.3});
  block.show(0.5);
  EXPECT_EQ(shownAlpha(), 0.3);
}

TEST_F(UIViewAnimationBlockTest, AChangeMadeLaterStands) {
  const UIViewAnimationBlock block([&] { view->setAlpha(0); });
  block.show(0.5);
  view->setAlpha(1);
  block.show(0.75);
  EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(UIViewAnimationBlockTest, ALaterBlockBeginsFromWhatIsShownAndTakesOver) {
  const UIViewAnimationBlock first([&] { view->setAlpha(0); });
  first.show(0.5);
  const UIViewAnimationBlock second([&] { view->setAlpha(1); });
  EXPECT_EQ(shownAlpha(), 0.5);
  second.show(0.5);
  EXPECT_EQ(shownAlpha(), 0.75);
  first.show(0.75);
  EXPECT_EQ(shownAlpha(), 0.75);
}

TEST_F(UIViewAnimationBlockTest, ALaterBlockWithTheSameGoalTakesOverToo) {
  const UIViewAnimationBlock first([&] { view->setAlpha(0); });
  first.show(0.5);
  const UIViewAnimationBlock second([&] { view->setAlpha(0); });
  second.show(0.5);
  EXPECT_EQ(shownAlpha(), 0.25);
  first.show(1);
  EXPECT_EQ(shownAlpha(), 0.25);
}

TEST_F(UIViewAnimationBlockTest, ALaterBlockTakesOverOnlyTheViewsThatItTouches) {
  const UIViewAnimationBlock first([&] {
    view->setAlpha(0);
    other->setAlpha(0);
  });
  const UIViewAnimationBlock second([&] { view->setAlpha(0.5); });
  first.show(0.5);
  EXPECT_EQ(shownAlpha(), 1);
  EXPECT_EQ(other->presentation().alpha, 0.5);
}

TEST_F(UIViewAnimationBlockTest, DoesNotKeepItsViews) {
  auto passing = std::make_shared<UIView>();
  const std::weak_ptr<UIView> gone = passing;
  const UIViewAnimationBlock block([&] { passing->setAlpha(0); });
  passing.reset();
  EXPECT_TRUE(gone.expired());
  block.show(1);
}

TEST_F(UIViewAnimationBlockTest, ShowsViewsInTheOrderOfTheirFirstChanges) {
  constexpr int kViews = 50;
  std::vector<UIViewRef> views;
  for (int i = 0; i < kViews; ++i) views.push_back(std::make_shared<UIView>());
  // As they lie in memory, from the last to the first.
  std::ranges::sort(views, std::greater());
  std::vector<const UIView*> expected;
  std::vector<const UIView*> shown;
  std::vector<Subscription> subscriptions;
  const UIViewAnimationBlock block([&] {
    for (const UIViewRef& each : views) {
      each->setAlpha(0);
      expected.push_back(each.get());
    }
    views.front()->setCornerRadius(3);
  });
  for (const UIViewRef& each : views) {
    subscriptions.push_back(each->observe([&, seen = each.get()] { shown.push_back(seen); }));
  }
  block.show(0.5);
  EXPECT_EQ(shown, expected);
}

TEST_F(UIViewAnimationBlockTest, KnowsAViewFromOneThatHasGoneFromItsPlace) {
  UIViewRef second;
  const UIViewAnimationBlock block([&] {
    UIViewRef first = viewAtOnePlace();
    const UIView* const place = first.get();
    first->setAlpha(0.5);
    first.reset();
    second = viewAtOnePlace();
    ASSERT_EQ(second.get(), place);
    second->setAlpha(0);
  });
  block.show(1);
  EXPECT_EQ(second->presentation().alpha, 0);
}

TEST_F(UIViewAnimationBlockTest, IsCurrentOnlyWhileItsClosureRuns) {
  UIViewAnimationBlock* inside = nullptr;
  EXPECT_EQ(UIViewAnimationBlock::current(), nullptr);
  const UIViewAnimationBlock block([&] { inside = UIViewAnimationBlock::current(); });
  EXPECT_EQ(inside, &block);
  EXPECT_EQ(UIViewAnimationBlock::current(), nullptr);
}

TEST_F(UIViewAnimationBlockTest, BlocksDoNotNest) {
  EXPECT_DEATH(UIViewAnimationBlock([] { const UIViewAnimationBlock inner([] {}); }),
               "fatal error: animation blocks do not nest");
}

}  // namespace
}  // namespace kindora
