// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIView.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {
namespace {

UIViewRef named(const char* name) {
  auto view = std::make_shared<UIView>();
  view->setName(name);
  return view;
}

class UIViewTest : public ::testing::Test {
 protected:
  const UIViewRef view = named("view");
  int changes = 0;
  Subscription subscription = view->observe([this] { ++changes; });
};

// --- State ---

TEST_F(UIViewTest, IsOpaqueAndAtItsPlaceAtTheStart) {
  EXPECT_EQ(view->alpha(), 1);
  EXPECT_EQ(view->state(), UIViewState{});
  EXPECT_EQ(view->presentation(), UIViewState{});
  EXPECT_TRUE(view->isUserInteractionEnabled());
  EXPECT_FALSE(view->shouldRasterize());
  EXPECT_LT(view->shadowPathRadius(), 0);
}

TEST_F(UIViewTest, ShowsAtOnceWhatChangesOutsideAnAnimation) {
  view->setAlpha(0.5);
  view->setTranslation({1, 2});
  view->setShadowOpacity(0.25);
  view->setShadowOffset({3, 4});
  view->setCornerRadius(20);
  view->setBackgroundColor(UIColor::yellowColor());
  view->setScaling(2);
  view->setCurl(0.75);
  const UIViewState expected{.alpha = 0.5,
                             .backgroundColor = UIColor::yellowColor(),
                             .translation = {1, 2},
                             .scaling = 2,
                             .cornerRadius = 20,
                             .shadowOpacity = 0.25,
                             .shadowOffset = {3, 4},
                             .curl = 0.75};
  EXPECT_EQ(view->state(), expected);
  EXPECT_EQ(view->presentation(), expected);
}

TEST_F(UIViewTest, TellsEveryChangeOfStateOnce) {
  view->setAlpha(0.5);
  EXPECT_EQ(changes, 1);
  view->setAlpha(0.5);
  EXPECT_EQ(changes, 1);
}

TEST_F(UIViewTest, TellsEveryChangeOfPresentationOnce) {
  view->setPresentation({.alpha = 0.5});
  EXPECT_EQ(changes, 1);
  view->setPresentation({.alpha = 0.5});
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(view->alpha(), 1);
}

TEST_F(UIViewTest, TheSameStateEndsAPresentationThatDiffers) {
  view->setPresentation({.alpha = 0.5});
  view->setAlpha(1);
  EXPECT_EQ(view->presentation().alpha, 1);
}

TEST_F(UIViewTest, TellsThatItTakesNoInputOnce) {
  view->setUserInteractionEnabled(false);
  view->setUserInteractionEnabled(false);
  EXPECT_FALSE(view->isUserInteractionEnabled());
  EXPECT_EQ(changes, 1);
}

TEST_F(UIViewTest, KeepsHowItIsRasterized) {
  view->setShouldRasterize(true, 2);
  EXPECT_TRUE(view->shouldRasterize());
  EXPECT_EQ(view->rasterizationScale(), 2);
  view->setShadowPathRadius(26);
  EXPECT_EQ(view->shadowPathRadius(), 26);
}

TEST_F(UIViewTest, ItsBoundsBeginAtItsOwnCorner) {
  view->setFrame({{10, 20}, {30, 40}});
  EXPECT_EQ(view->frame(), (CGRect{{10, 20}, {30, 40}}));
  EXPECT_EQ(view->bounds(), (CGRect{{0, 0}, {30, 40}}));
}

// --- States between states ---

TEST(UIViewState, IsExactAtBothEnds) {
  const UIViewState from{.alpha = 0.1, .translation = {0.3, 0.7}, .cornerRadius = 0.9, .layout = 1};
  const UIViewState to{.alpha = 0.7, .translation = {1e9, -3}, .scaling = 3, .layout = 2};
  EXPECT_EQ(interpolated(from, to, 0), from);
  EXPECT_EQ(interpolated(from, to, 1), to);
}

TEST(UIViewState, EveryFieldIsHalfWayAtAHalf) {
  const UIViewState from{.frame = {{0, 10}, {20, 30}},
                         .alpha = 0,
                         .backgroundColor = {0, 0.25, 0.5, 0},
                         .translation = {0, 10},
                         .scaling = 1,
                         .cornerRadius = 20,
                         .shadowOpacity = 0.5,
                         .shadowOffset = {0, 3},
                         .curl = 0,
                         .layout = 0};
  const UIViewState to{.frame = {{10, 0}, {40, 10}},
                       .alpha = 1,
                       .backgroundColor = {0.5, 0.75, 1, 1},
                       .translation = {4, 20},
                       .scaling = 2,
                       .cornerRadius = 40,
                       .shadowOpacity = 0,
                       .shadowOffset = {2, 1},
                       .curl = 1,
                       .layout = 1};
  const UIViewState half{.frame = {{5, 5}, {30, 20}},
                         .alpha = 0.5,
                         .backgroundColor = {0.25, 0.5, 0.75, 0.5},
                         .translation = {2, 15},
                         .scaling = 1.5,
                         .cornerRadius = 30,
                         .shadowOpacity = 0.25,
                         .shadowOffset = {1, 2},
                         .curl = 0.5,
                         .layout = 0.5};
  EXPECT_EQ(interpolated(from, to, 0.5), half);
}

TEST(UIViewState, SpringsMayOvershoot) {
  EXPECT_EQ(interpolated({.scaling = 1}, {.scaling = 2}, 1.5).scaling, 2.5);
}

// --- Observers ---

TEST_F(UIViewTest, ADroppedSubscriptionHearsNothing) {
  subscription = {};
  view->setAlpha(0);
  EXPECT_EQ(changes, 0);
}

TEST_F(UIViewTest, AMovedSubscriptionStillHears) {
  const Subscription moved = std::move(subscription);
  view->setAlpha(0);
  EXPECT_EQ(changes, 1);
}

TEST_F(UIViewTest, EveryObserverHears) {
  int others = 0;
  const auto other = view->observe([&others] { ++others; });
  view->setAlpha(0);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(others, 1);
}

TEST_F(UIViewTest, AnObserverMayDropItself) {
  Subscription own;
  int heard = 0;
  own = view->observe([&] {
    ++heard;
    own = {};
  });
  view->setAlpha(0.5);
  view->setAlpha(0);
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(changes, 2);
}

TEST_F(UIViewTest, AnObserverMayDropTheNext) {
  Subscription next;
  bool heard = false;
  const auto first = view->observe([&next] { next = {}; });
  next = view->observe([&heard] { heard = true; });
  view->setAlpha(0);
  EXPECT_FALSE(heard);
}

TEST_F(UIViewTest, ASubscriptionMayOutliveItsView) {
  auto passing = named("passing");
  Subscription kept = passing->observe([] {});
  passing.reset();
  kept = {};
  SUCCEED();
}

// --- Places ---

TEST_F(UIViewTest, AddsSubviewsInOrder) {
  const auto a = named("a");
  const auto b = named("b");
  view->addSubview(a);
  view->addSubview(b);
  EXPECT_EQ(view->subviews(), (std::vector{a, b}));
  EXPECT_EQ(a->superview(), view);
}

TEST_F(UIViewTest, ASubviewHasOneSuperview) {
  const auto other = named("other");
  const auto a = named("a");
  view->addSubview(a);
  other->addSubview(a);
  EXPECT_TRUE(view->subviews().empty());
  EXPECT_EQ(a->superview(), other);
}

TEST_F(UIViewTest, ASubviewAddedAgainComesToTheFront) {
  const auto a = named("a");
  const auto b = named("b");
  view->addSubview(a);
  view->addSubview(b);
  view->addSubview(a);
  EXPECT_EQ(view->subviews(), (std::vector{b, a}));
}

TEST_F(UIViewTest, ARootIsNotRemoved) { EXPECT_FALSE(view->isRemoved()); }

TEST_F(UIViewTest, LeavesItsSuperview) {
  const auto parent = named("parent");
  parent->addSubview(view);
  changes = 0;
  view->removeFromSuperview();
  EXPECT_EQ(view->superview(), nullptr);
  EXPECT_TRUE(parent->subviews().empty());
  EXPECT_TRUE(view->isRemoved());
  EXPECT_EQ(changes, 1);
}

TEST_F(UIViewTest, WithoutASuperviewThereIsNothingToLeave) {
  view->removeFromSuperview();
  EXPECT_FALSE(view->isRemoved());
  EXPECT_EQ(changes, 0);
}

TEST_F(UIViewTest, AddedAgainItIsNotRemoved) {
  const auto parent = named("parent");
  parent->addSubview(view);
  view->removeFromSuperview();
  parent->addSubview(view);
  EXPECT_FALSE(view->isRemoved());
}

TEST_F(UIViewTest, IsHeldByItsSuperviewAlone) {
  auto child = named("child");
  const std::weak_ptr<UIView> gone = child;
  view->addSubview(child);
  child.reset();
  EXPECT_FALSE(gone.expired());
  gone.lock()->removeFromSuperview();
  EXPECT_TRUE(gone.expired());
}

TEST_F(UIViewTest, DoesNotHoldItsSuperview) {
  auto parent = named("parent");
  parent->addSubview(view);
  parent.reset();
  EXPECT_EQ(view->superview(), nullptr);
}

TEST_F(UIViewTest, FindsViewsByNameAtAnyDepth) {
  const auto middle = named("middle");
  const auto deep = named("deep");
  view->addSubview(middle);
  middle->addSubview(deep);
  EXPECT_EQ(view->viewWithName("view"), view);
  EXPECT_EQ(view->viewWithName("deep"), deep);
  EXPECT_EQ(view->viewWithName("missing"), nullptr);
  EXPECT_EQ(middle->viewWithName("view"), nullptr);
}

// --- Layout ---

class UIViewLayoutTest : public ::testing::Test {
 protected:
  static std::shared_ptr<NSLayoutConstraint> constraint() {
    return std::make_shared<NSLayoutConstraint>();
  }
  const UIViewRef view = named("view");
};

TEST_F(UIViewLayoutTest, TheFirstLayoutIsTheStart) {
  view->addConstraint(constraint());
  view->layoutIfNeeded();
  EXPECT_EQ(view->state().layout, 0);
}

TEST_F(UIViewLayoutTest, TellsOfEachLayoutAllWhoHear) {
  int first = 0;
  int second = 0;
  const auto one = view->observeLayout([&first] { ++first; });
  auto other = view->observeLayout([&second] { ++second; });
  view->layoutIfNeeded();
  view->layoutIfNeeded();  // nothing is left to do
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
  other.reset();
  view->setNeedsLayout();
  view->layoutIfNeeded();
  EXPECT_EQ(first, 2);
  EXPECT_EQ(second, 1);
}

TEST_F(UIViewLayoutTest, AChangeIsLaidOutOnlyWhenAsked) {
  view->layoutIfNeeded();
  view->addConstraint(constraint());
  EXPECT_EQ(view->state().layout, 0);
  view->layoutIfNeeded();
  EXPECT_EQ(view->state().layout, 1);
}

TEST_F(UIViewLayoutTest, SeveralChangesAreLaidOutTogether) {
  const auto old = constraint();
  view->addConstraint(old);
  view->layoutIfNeeded();
  view->removeConstraint(old);
  view->addConstraint(constraint());
  view->layoutIfNeeded();
  EXPECT_EQ(view->state().layout, 1);
}

TEST_F(UIViewLayoutTest, WithoutAChangeThereIsNothingToLayOut) {
  view->layoutIfNeeded();
  view->removeConstraint(constraint());
  view->layoutIfNeeded();
  EXPECT_EQ(view->state().layout, 0);
}

TEST_F(UIViewLayoutTest, HoldsItsConstraintsUntilTheyAreRemoved) {
  auto held = constraint();
  const std::weak_ptr<NSLayoutConstraint> gone = held;
  view->addConstraint(held);
  held.reset();
  ASSERT_FALSE(gone.expired());
  view->removeConstraint(gone.lock());
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(view->constraints().empty());
}

TEST_F(UIViewLayoutTest, RemovingNoConstraintIsNoHarm) {
  view->addConstraint(constraint());
  view->removeConstraint(nullptr);
  EXPECT_EQ(view->constraints().size(), 1u);
}

}  // namespace
}  // namespace kindora
