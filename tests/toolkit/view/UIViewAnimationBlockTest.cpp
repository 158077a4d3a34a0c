// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAnimationBlock.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>

#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

// Memory for one object at a time, so that the next lies where the one before did.
template <typename T>
class OnePlace {
 public:
  using value_type = T;
  OnePlace() = default;
  template <typename U>
  explicit OnePlace(const OnePlace<U>& /*other*/) {}
  T* allocate(std::size_t count) {
    alignas(std::max_align_t) static std::array<std::byte, 4096> place;
    EXPECT_LE(count * sizeof(T), place.size());
    return reinterpret_cast<T*>(place.data());
  }
  void deallocate(T* /*where*/, std::size_t /*count*/) {}
  bool operator==(const OnePlace& /*other*/) const { return true; }
};

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

TEST_F(UIViewAnimationBlockTest, KnowsAViewFromOneThatHasGoneFromItsPlace) {
  UIViewRef second;
  const UIViewAnimationBlock block([&] {
    auto first = std::allocate_shared<UIView>(OnePlace<UIView>());
    const UIView* const place = first.get();
    first->setAlpha(0.5);
    first.reset();
    second = std::allocate_shared<UIView>(OnePlace<UIView>());
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
