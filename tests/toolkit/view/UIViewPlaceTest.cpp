// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

#include "tests/toolkit/view/FakeRenderer.h"
#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewAnimationBlock.h"

namespace kindora {
namespace {

using Views = std::vector<UIViewRef>;

// A view of 100 x 80 points at (10, 20), and another to put inside.
class UIViewPlaceTest : public ::testing::Test {
 protected:
  UIViewPlaceTest() { view->setFrame({{10, 20}, {100, 80}}); }

  const UIViewRef view = std::make_shared<UIView>();
  const UIViewRef inner = std::make_shared<UIView>();
};

// --- Frames ---

TEST_F(UIViewPlaceTest, ItsCentreIsInTheSuperviewsSpace) {
  EXPECT_EQ(view->center(), (CGPoint{60, 60}));
}

TEST_F(UIViewPlaceTest, MovingTheCentreKeepsTheSize) {
  view->setCenter({0, 0});
  EXPECT_EQ(view->frame(), (CGRect{{-50, -40}, {100, 80}}));
}

TEST_F(UIViewPlaceTest, ResizingKeepsTheCentre) {
  view->setSize({80, 80});
  EXPECT_EQ(view->frame(), (CGRect{{20, 20}, {80, 80}}));
}

TEST_F(UIViewPlaceTest, AFrameIsAnimated) {
  const UIViewAnimationBlock block([&] { view->setFrame({{30, 20}, {100, 40}}); });
  EXPECT_EQ(view->presentation().frame, (CGRect{{10, 20}, {100, 80}}));
  block.show(0.5);
  EXPECT_EQ(view->presentation().frame, (CGRect{{20, 20}, {100, 60}}));
  block.show(1);
  EXPECT_EQ(view->presentation().frame, view->frame());
}

TEST_F(UIViewPlaceTest, AReportedFrameShowsAtOnceAndIsToldToNobody) {
  int changes = 0;
  const auto subscription = view->observe([&changes] { ++changes; });
  view->reportFrame({{1, 2}, {3, 4}});
  EXPECT_EQ(view->frame(), (CGRect{{1, 2}, {3, 4}}));
  EXPECT_EQ(view->presentation().frame, view->frame());
  EXPECT_EQ(changes, 0);
}

TEST_F(UIViewPlaceTest, AReportedFrameThatIsNewIsALayout) {
  int layouts = 0;
  const auto subscription = view->observeLayout([&layouts] { ++layouts; });
  view->reportFrame({{1, 2}, {3, 4}});
  EXPECT_EQ(layouts, 1);
  view->reportFrame({{1, 2}, {3, 4}});
  EXPECT_EQ(layouts, 1);
}

TEST_F(UIViewPlaceTest, AReportedFrameStandsWhileSomethingElseIsAnimated) {
  const UIViewAnimationBlock block([&] { view->setAlpha(0); });
  view->reportFrame({{1, 2}, {3, 4}});
  block.show(0.5);
  EXPECT_EQ(view->presentation().frame, (CGRect{{1, 2}, {3, 4}}));
  EXPECT_EQ(view->presentation().alpha, 0.5);
}

// --- Filling the superview ---

TEST_F(UIViewPlaceTest, AViewThatFillsFollowsTheSizeOfItsSuperview) {
  inner->setFillsSuperview(true);
  view->addSubview(inner);
  view->setSize({50, 60});
  EXPECT_EQ(inner->frame(), (CGRect{{0, 0}, {50, 60}}));
}

TEST_F(UIViewPlaceTest, AViewThatFillsFollowsAReportedSize) {
  inner->setFillsSuperview(true);
  view->addSubview(inner);
  view->reportFrame({{5, 5}, {30, 40}});
  EXPECT_EQ(inner->frame(), (CGRect{{0, 0}, {30, 40}}));
}

TEST_F(UIViewPlaceTest, AViewThatFillsGoesAlongWithAnAnimation) {
  inner->setFillsSuperview(true);
  inner->setFrame(view->bounds());
  view->addSubview(inner);
  const UIViewAnimationBlock block([&] { view->setSize({200, 40}); });
  block.show(0.5);
  EXPECT_EQ(inner->presentation().frame, (CGRect{{0, 0}, {150, 60}}));
  EXPECT_EQ(inner->frame(), (CGRect{{0, 0}, {200, 40}}));
}

TEST_F(UIViewPlaceTest, FillingReachesAllTheWayDown) {
  const auto innermost = std::make_shared<UIView>();
  inner->setFillsSuperview(true);
  innermost->setFillsSuperview(true);
  inner->addSubview(innermost);
  view->addSubview(inner);
  view->setSize({50, 60});
  EXPECT_EQ(innermost->frame(), (CGRect{{0, 0}, {50, 60}}));
}

TEST_F(UIViewPlaceTest, OtherViewsKeepTheirFrames) {
  inner->setFrame({{1, 2}, {3, 4}});
  view->addSubview(inner);
  view->setSize({50, 60});
  EXPECT_EQ(inner->frame(), (CGRect{{1, 2}, {3, 4}}));
}

TEST_F(UIViewPlaceTest, AMoveAloneLeavesWhatFillsAlone) {
  inner->setFillsSuperview(true);
  view->addSubview(inner);
  view->setCenter({0, 0});
  EXPECT_EQ(inner->frame(), CGRect{});
}

// --- Spaces ---

TEST_F(UIViewPlaceTest, LiesInTheWindowWhereItsFramesAddUpTo) {
  inner->setFrame({{3, 4}, {5, 6}});
  view->addSubview(inner);
  EXPECT_EQ(inner->originInWindow(), (CGPoint{13, 24}));
}

TEST_F(UIViewPlaceTest, LiesInTheWindowWhereItsItemSays) {
  const FakeRenderer renderer(*view, CGPoint{200, 300});
  inner->setFrame({{3, 4}, {5, 6}});
  view->addSubview(inner);
  EXPECT_EQ(view->originInWindow(), (CGPoint{200, 300}));
  EXPECT_EQ(inner->originInWindow(), (CGPoint{203, 304}));
}

TEST_F(UIViewPlaceTest, LiesWhereItsFrameSaysOnceItsItemHasGone) {
  { const FakeRenderer gone(*view, CGPoint{200, 300}); }
  EXPECT_EQ(view->originInWindow(), (CGPoint{10, 20}));
}

TEST_F(UIViewPlaceTest, LiesWhereItsFrameSaysWhileItsItemDoesNotKnow) {
  const FakeRenderer renderer(*view);
  EXPECT_EQ(view->originInWindow(), (CGPoint{10, 20}));
}

TEST_F(UIViewPlaceTest, AnItemThatGoesLeavesTheOneThatTookTheViewOver) {
  auto before = std::make_optional<FakeRenderer>(*view, CGPoint{200, 300});
  const FakeRenderer now(*view, CGPoint{400, 500});
  EXPECT_EQ(view->originInWindow(), (CGPoint{400, 500}));
  before.reset();
  EXPECT_EQ(view->originInWindow(), (CGPoint{400, 500}));
}

TEST_F(UIViewPlaceTest, ConvertsAPointOfAnotherSpaceIntoItsOwn) {
  const auto bar = std::make_shared<UIView>();
  const FakeRenderer ofBar(*bar, CGPoint{0, 795});
  const FakeRenderer ofView(*view, CGPoint{0, 64});
  EXPECT_EQ(view->convertPoint({292.5, 49}, *bar), (CGPoint{292.5, 780}));
}

TEST_F(UIViewPlaceTest, ConvertsToAndFro) {
  inner->setFrame({{3, 4}, {5, 6}});
  view->addSubview(inner);
  EXPECT_EQ(view->convertPoint({1, 1}, *inner), (CGPoint{4, 5}));
  EXPECT_EQ(inner->convertPoint({4, 5}, *view), (CGPoint{1, 1}));
  EXPECT_EQ(view->convertPoint({7, 8}, *view), (CGPoint{7, 8}));
}

// --- The order of subviews ---

TEST_F(UIViewPlaceTest, StandsDirectlyAboveASibling) {
  const auto first = std::make_shared<UIView>();
  const auto second = std::make_shared<UIView>();
  view->addSubview(first);
  view->addSubview(second);
  view->insertSubviewAbove(inner, first.get());
  EXPECT_EQ(view->subviews(), (Views{first, inner, second}));
  EXPECT_EQ(inner->superview(), view);
}

TEST_F(UIViewPlaceTest, StandsOnTopAboveTheTopmostSibling) {
  const auto first = std::make_shared<UIView>();
  view->addSubview(first);
  view->insertSubviewAbove(inner, first.get());
  EXPECT_EQ(view->subviews(), (Views{first, inner}));
}

TEST_F(UIViewPlaceTest, StandsOnTopWhenTheSiblingIsElsewhere) {
  const auto first = std::make_shared<UIView>();
  const auto stranger = std::make_shared<UIView>();
  view->addSubview(first);
  view->insertSubviewAbove(inner, stranger.get());
  EXPECT_EQ(view->subviews(), (Views{first, inner}));
}

TEST_F(UIViewPlaceTest, LeavesWhereItWasBefore) {
  const auto first = std::make_shared<UIView>();
  view->addSubview(inner);
  view->addSubview(first);
  view->insertSubviewAbove(inner, first.get());
  EXPECT_EQ(view->subviews(), (Views{first, inner}));
  EXPECT_FALSE(inner->isRemoved());
}

// --- Hiding and clipping ---

TEST_F(UIViewPlaceTest, TellsOnceThatItIsHidden) {
  int changes = 0;
  const auto subscription = view->observe([&changes] { ++changes; });
  EXPECT_FALSE(view->isHidden());
  view->setHidden(true);
  view->setHidden(true);
  EXPECT_TRUE(view->isHidden());
  EXPECT_EQ(changes, 1);
  view->setHidden(false);
  EXPECT_EQ(changes, 2);
}

TEST_F(UIViewPlaceTest, ClipsOnlyWhenTold) {
  EXPECT_FALSE(view->clipsToBounds());
  view->setClipsToBounds(true);
  EXPECT_TRUE(view->clipsToBounds());
}

TEST_F(UIViewPlaceTest, ARecordPlacesItselfWhateverItsName) {
  EXPECT_EQ(view->placer(), UIViewPlacer::record);
  view->setName("view");
  EXPECT_EQ(view->placer(), UIViewPlacer::record);
}

TEST_F(UIViewPlaceTest, APagePlacesAnOutlet) {
  std::weak_ptr<UIView> outlet;
  EXPECT_EQ(connectOutlet(outlet, "outlet", *view)->placer(), UIViewPlacer::page);
}

// --- Covering ---

class UIViewCoverTest : public ::testing::Test {
 protected:
  UIViewCoverTest() {
    cover->setFillsSuperview(true);
    view->addSubview(cover);
  }

  const UIViewRef view = std::make_shared<UIView>();
  const UIViewRef cover = std::make_shared<UIView>();
};

TEST_F(UIViewCoverTest, AViewMadeInCodeThatFillsTakesAllInput) {
  EXPECT_TRUE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, ATransparentOneTakesInputToo) {
  cover->setBackgroundColor(UIColor::blackColor().colorWithAlphaComponent(0));
  EXPECT_TRUE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, OneThatHasGoneTakesNone) {
  cover->removeFromSuperview();
  EXPECT_FALSE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, OneThatTakesNoInputLeavesItToWhatLiesBelow) {
  cover->setUserInteractionEnabled(false);
  EXPECT_FALSE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, OneOfItsOwnSizeCoversNot) {
  cover->setFillsSuperview(false);
  EXPECT_FALSE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, AStoryboardsViewCoversNot) {
  cover->setPlacer(UIViewPlacer::page);
  EXPECT_FALSE(hasCoveringSubview(*view));
}

TEST_F(UIViewCoverTest, APictureCoversNotUnlessItTakesTouches) {
  cover->removeFromSuperview();
  const auto picture = std::make_shared<UIImageView>();
  picture->setFillsSuperview(true);
  view->addSubview(picture);
  EXPECT_FALSE(hasCoveringSubview(*view));
  picture->setUserInteractionEnabled(true);
  EXPECT_TRUE(hasCoveringSubview(*view));
}

TEST_F(UIViewPlaceTest, AnObserverOfItsFrameMayLetGoOfIt) {
  auto passing = std::make_shared<UIView>();
  UIView& seen = *passing;
  const std::weak_ptr<UIView> gone = passing;
  const auto subscription = seen.observe([&passing] { passing.reset(); });
  seen.setFrame({{0, 0}, {9, 9}});
  EXPECT_TRUE(gone.expired());
}

TEST_F(UIViewPlaceTest, AViewThatFillsAnotherMayLeaveItWhenThatIsResized) {
  inner->setFillsSuperview(true);
  const auto next = std::make_shared<UIView>();
  next->setFillsSuperview(true);
  view->addSubview(inner);
  view->addSubview(next);
  const auto subscription = inner->observe([this] { inner->removeFromSuperview(); });
  view->setFrame({{10, 20}, {50, 40}});
  EXPECT_EQ(view->subviews(), Views{next});
  EXPECT_EQ(next->frame(), (CGRect{{0, 0}, {50, 40}}));
}

}  // namespace
}  // namespace kindora
