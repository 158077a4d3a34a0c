// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <type_traits>

#include "tests/effects/springy/SpringyFixture.h"

namespace kindora {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::set<IndexPath> pathsOfSprings(const BelSpringyCollectionViewFlowLayout& layout) {
  std::set<IndexPath> paths;
  for (const auto& spring : layout.dynamicAnimator()->behaviors()) {
    paths.insert(spring->items().front()->indexPath());
  }
  return paths;
}

// A view that treats its layout as a view is to.
class Springy {
 public:
  explicit Springy(int items, CGSize size = {320, 480}) : view(items, size) {
    layout.setCollectionView(&view);
    layout.prepareLayout();
  }
  ~Springy() { layout.setCollectionView(nullptr); }
  Springy(const Springy&) = delete;
  Springy& operator=(const Springy&) = delete;

  bool scrollBy(double dx, double dy) {
    CGRect bounds = view.currentBounds;
    bounds.origin.x += dx;
    bounds.origin.y += dy;
    const bool invalidates = layout.shouldInvalidateLayoutForBoundsChange(bounds);
    view.currentBounds = bounds;
    layout.prepareLayout();
    return invalidates;
  }
  void tick(double seconds) {
    if (layout.dynamicAnimator()->advance(seconds)) layout.prepareLayout();
  }
  void settle() {
    for (int i = 0; i < 600 && !layout.dynamicAnimator()->isResting(); ++i) tick(1 / 60.0);
    EXPECT_TRUE(layout.dynamicAnimator()->isResting());
  }
  void reload(int items) {
    view.itemsOfSections = {items};
    layout.invalidateLayout();
    layout.prepareLayout();
  }
  [[nodiscard]] UIAttachmentBehaviorRef spring(int row) const {
    for (const auto& spring : layout.dynamicAnimator()->behaviors()) {
      if (spring->items().front()->indexPath() == IndexPath{0, row}) return spring;
    }
    return nullptr;
  }
  [[nodiscard]] CGPoint center(int row) const { return spring(row)->items().front()->center(); }
  [[nodiscard]] CGPoint anchor(int row) const { return spring(row)->anchorPoint(); }
  [[nodiscard]] double lag(int row) const { return center(row).y - anchor(row).y; }

  FakeCollectionView view;
  BelSpringyCollectionViewFlowLayout layout;
};

// A column of cells of 100 x 100 in a view of 120 x 450: row r rests on (60, 60 + 110 r), and rows
// 0 to 4 have springs.
class SpringyColumn : public Springy {
 public:
  explicit SpringyColumn(int items) : Springy(items, {120, 450}) {
    layout.setItemSize({100, 100});
    layout.prepareLayout();
  }
};

TEST(BelSpringyCollectionViewFlowLayout, IsAFlowLayout) {
  static_assert(std::is_base_of_v<UICollectionViewFlowLayout, BelSpringyCollectionViewFlowLayout>);
}

TEST(BelSpringyCollectionViewFlowLayout, StartsWithItsDefaults) {
  const BelSpringyCollectionViewFlowLayout layout;
  EXPECT_EQ(layout.minimumInteritemSpacing(), 10);
  EXPECT_EQ(layout.minimumLineSpacing(), 10);
  EXPECT_EQ(layout.itemSize(), (CGSize{44, 44}));
  EXPECT_EQ(layout.sectionInset(), (UIEdgeInsets{10, 10, 10, 10}));
  EXPECT_EQ(layout.latestDelta(), 0);
  EXPECT_THAT(layout.visibleIndexPathsSet(), IsEmpty());
  EXPECT_THAT(layout.dynamicAnimator()->behaviors(), IsEmpty());
  EXPECT_EQ(&layout.dynamicAnimator()->collectionViewLayout(), &layout);
}

TEST(BelSpringyCollectionViewFlowLayout, HangsEachCellOnASpringAtItsRestingPlace) {
  const Springy springy(3);
  const auto springs = springy.layout.dynamicAnimator()->behaviors();
  ASSERT_EQ(springs.size(), 3U);
  for (const auto& spring : springs) {
    EXPECT_EQ(spring->length(), 0);
    EXPECT_EQ(spring->damping(), 0.800000011920929);
    EXPECT_EQ(spring->frequency(), 1);
    EXPECT_EQ(spring->anchorPoint(), spring->items().front()->center());
  }
  EXPECT_EQ(springs[0]->anchorPoint(), (CGPoint{32, 32}));
  EXPECT_TRUE(springy.layout.dynamicAnimator()->isResting());
}

TEST(BelSpringyCollectionViewFlowLayout, MakesSpringsInTheOrderOfTheFlowLayout) {
  const Springy springy(20);
  const auto springs = springy.layout.dynamicAnimator()->behaviors();
  ASSERT_EQ(springs.size(), 20U);
  for (int row = 0; row < 20; ++row) {
    EXPECT_EQ(springs[static_cast<std::size_t>(row)]->items().front()->indexPath().row, row);
  }
}

TEST(BelSpringyCollectionViewFlowLayout, CellsWithinAHundredPointsHaveSprings) {
  // Row r takes the points from 10 + 110 r to 110 + 110 r.
  SpringyColumn springy(100);
  springy.view.currentFrame.size.height = 460.25;
  springy.view.currentBounds.origin.y = 320.25;
  springy.layout.prepareLayout();
  // From 220.25 to 880.5.
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(),
              ElementsAre(IndexPath{0, 2}, IndexPath{0, 3}, IndexPath{0, 4}, IndexPath{0, 5},
                          IndexPath{0, 6}, IndexPath{0, 7}));
}

TEST(BelSpringyCollectionViewFlowLayout, CellThatTouchesTheMarginHasNoSpring) {
  SpringyColumn springy(100);
  // From 110 to 780: row 0 ends at 110, row 7 starts at 780.
  springy.view.currentFrame.size.height = 470;
  springy.view.currentBounds.origin.y = 210;
  springy.layout.prepareLayout();
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), Not(Contains(IndexPath{0, 0})));
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), Contains(IndexPath{0, 1}));
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), Contains(IndexPath{0, 6}));
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), Not(Contains(IndexPath{0, 7})));
}

TEST(BelSpringyCollectionViewFlowLayout, VisibleRectHasTheOriginOfTheBoundsAndTheSizeOfTheFrame) {
  SpringyColumn springy(100);
  springy.view.currentFrame = {{5000, 5000}, {120, 100}};
  springy.view.currentBounds = {{0, 1110}, {120, 3000}};
  springy.layout.invalidateLayout();
  springy.layout.prepareLayout();
  // From 1010 to 1310.
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(),
              ElementsAre(IndexPath{0, 9}, IndexPath{0, 10}, IndexPath{0, 11}));
}

TEST(BelSpringyCollectionViewFlowLayout, AppliesTheMarginSidewaysToo) {
  Springy springy(3, {500, 480});
  springy.layout.setItemSize({100, 100});
  springy.layout.setMinimumInteritemSpacing(90);
  // Columns from 10, 200 and 390; what shows is from 291 to 791.
  springy.view.currentBounds.origin.x = 391;
  springy.layout.prepareLayout();
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), ElementsAre(IndexPath{0, 1}, IndexPath{0, 2}));
}

TEST(BelSpringyCollectionViewFlowLayout, HasSpringsForWhatShowsOnlyHoweverManyItemsThereAre) {
  const Springy few(1000);
  const Springy many(1000000);
  EXPECT_EQ(few.layout.dynamicAnimator()->behaviors().size(),
            many.layout.dynamicAnimator()->behaviors().size());
  EXPECT_LT(many.layout.dynamicAnimator()->behaviors().size(), 100U);
}

TEST(BelSpringyCollectionViewFlowLayout, KeepsSpringsThatAreStillNear) {
  SpringyColumn springy(100);
  const auto before = springy.spring(2);
  springy.scrollBy(0, 30);
  EXPECT_NE(springy.lag(2), 0);
  EXPECT_EQ(springy.spring(2), before);
  EXPECT_EQ(springy.anchor(2), (CGPoint{60, 280}));
}

TEST(BelSpringyCollectionViewFlowLayout, CellThatComesBackGetsAFreshSpringAtItsRestingPlace) {
  SpringyColumn springy(100);
  const auto before = springy.spring(0);
  springy.scrollBy(0, 300);
  EXPECT_EQ(springy.spring(0), nullptr);
  EXPECT_EQ(springy.layout.layoutAttributesForItemAtIndexPath({0, 0}), nullptr);
  springy.scrollBy(0, -300);
  ASSERT_NE(springy.spring(0), nullptr);
  EXPECT_NE(springy.spring(0), before);
  EXPECT_EQ(springy.anchor(0), (CGPoint{60, 60}));
  EXPECT_EQ(springy.center(0), (CGPoint{60, 60}));
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollMovesACellHalfwayAt750Points) {
  SpringyColumn springy(1);
  springy.view.finger = {60 + 300, 60 + 450};
  springy.scrollBy(0, 20);
  EXPECT_EQ(springy.lag(0), 10);
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollMovesACellByNoMoreThanItself) {
  SpringyColumn springy(1);
  springy.view.finger = {60, 60 + 3000};
  springy.scrollBy(0, 20);
  EXPECT_EQ(springy.lag(0), 20);
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollUpMovesACellUpHalfwayAt750Points) {
  SpringyColumn springy(1);
  springy.view.finger = {60 - 300, 60 + 450};
  springy.scrollBy(0, -20);
  EXPECT_EQ(springy.lag(0), -10);
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollUpMovesACellByNoMoreThanItself) {
  SpringyColumn springy(1);
  springy.view.finger = {60, 60 - 3000};
  springy.scrollBy(0, -20);
  EXPECT_EQ(springy.lag(0), -20);
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollOfNothingMovesNothing) {
  SpringyColumn springy(1);
  springy.view.finger = {500, 500};
  springy.scrollBy(0, 0);
  EXPECT_EQ(springy.lag(0), 0);
  EXPECT_EQ(springy.layout.latestDelta(), 0);
}

TEST(BelSpringyCollectionViewFlowLayout, CellUnderTheFingerStaysAndFarOnesLag) {
  SpringyColumn springy(5);
  springy.view.finger = {60, 60};
  springy.scrollBy(0, 30);
  EXPECT_EQ(springy.lag(0), 0);
  double before = 0;
  for (int row = 1; row < 5; ++row) {
    EXPECT_GT(springy.lag(row), before);
    before = springy.lag(row);
  }
}

TEST(BelSpringyCollectionViewFlowLayout, DistanceIsMeasuredToTheAnchorNotToTheCell) {
  SpringyColumn springy(1);
  springy.view.finger = {60, 60 + 750};
  springy.scrollBy(0, 20);
  springy.scrollBy(0, 20);
  EXPECT_EQ(springy.lag(0), 20);
}

TEST(BelSpringyCollectionViewFlowLayout, DifferencesAreRoundedToSinglePrecisionNotTheirSum) {
  SpringyColumn springy(1);
  const double x = 60 + 0.1;
  const double y = 60 + 700.3;
  springy.view.finger = {x, y};
  springy.scrollBy(0, 64);
  const double dy = std::abs(static_cast<float>(y - 60));
  const double dx = std::abs(static_cast<float>(x - 60));
  const double expected = 60 + 64 * ((dy + dx) / 1500);
  EXPECT_EQ(springy.center(0).y, expected);
  EXPECT_NE(springy.center(0).y, 60 + 64 * (((y - 60) + (x - 60)) / 1500));
  EXPECT_NE(springy.center(0).y,
            60 + 64 * (static_cast<double>(static_cast<float>(dy + dx)) / 1500));
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollWithoutAFingerIsMeasuredFromTheZeroPoint) {
  SpringyColumn springy(1);
  springy.scrollBy(0, 50);
  EXPECT_EQ(springy.lag(0), 50 * (120.0 / 1500));
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollIsTheChangeFromThePresentBounds) {
  SpringyColumn springy(100);
  springy.scrollBy(0, 70);
  EXPECT_EQ(springy.layout.latestDelta(), 70);
  springy.scrollBy(0, -25);
  EXPECT_EQ(springy.layout.latestDelta(), -25);
}

TEST(BelSpringyCollectionViewFlowLayout, NeverInvalidatesForAChangeOfBounds) {
  SpringyColumn springy(100);
  for (const double dy : {20.0, -20.0, 0.0, 5000.0}) EXPECT_FALSE(springy.scrollBy(0, dy));
  EXPECT_FALSE(springy.layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {900, 100}}));
}

TEST(BelSpringyCollectionViewFlowLayout, SidewaysScrollMovesNothing) {
  SpringyColumn springy(3);
  springy.view.finger = {900, 900};
  springy.scrollBy(15, 0);
  for (int row = 0; row < 3; ++row) EXPECT_EQ(springy.center(row), springy.anchor(row));
}

TEST(BelSpringyCollectionViewFlowLayout, ScrollNeverMovesACellSideways) {
  SpringyColumn springy(3);
  springy.view.finger = {900, 900};
  springy.scrollBy(15, 40);
  for (int row = 0; row < 3; ++row) EXPECT_EQ(springy.center(row).x, 60);
}

TEST(BelSpringyCollectionViewFlowLayout, ScrolledCellIsWhereTheAnimatorGoesOnFrom) {
  SpringyColumn springy(1);
  springy.view.finger = {60, 60 + 750};
  springy.scrollBy(0, 20);
  EXPECT_FALSE(springy.layout.dynamicAnimator()->isResting());
  springy.tick(1 / 60.0);
  const double expected = DampedSpring(1, 0.8F, 1 / 60.0).after({10, 0}).displacement;
  EXPECT_NEAR(springy.lag(0), expected, 1e-9);
}

TEST(BelSpringyCollectionViewFlowLayout, NewCellIsDisplacedLikeItsNeighboursDuringADrag) {
  SpringyColumn springy(100);
  springy.view.finger = {60, 100};
  ASSERT_EQ(springy.spring(5), nullptr);
  springy.scrollBy(0, 30);
  ASSERT_NE(springy.spring(5), nullptr);
  EXPECT_EQ(springy.anchor(5), (CGPoint{60, 610}));
  EXPECT_EQ(springy.center(5), (CGPoint{60, 610 + 30 * (510.0 / 1500)}));
}

TEST(BelSpringyCollectionViewFlowLayout, NewCellIsDisplacedByTheLatestScrollAlone) {
  SpringyColumn springy(100);
  springy.view.finger = {60, 100};
  springy.scrollBy(0, 10);
  springy.scrollBy(0, 25);
  ASSERT_NE(springy.spring(5), nullptr);
  EXPECT_EQ(springy.center(5), (CGPoint{60, 610 + 25 * (510.0 / 1500)}));
}

TEST(BelSpringyCollectionViewFlowLayout, NewCellIsNotDisplacedWithoutAFinger) {
  SpringyColumn springy(100);
  springy.scrollBy(0, 30);
  ASSERT_NE(springy.spring(5), nullptr);
  EXPECT_EQ(springy.lag(5), 0);
  EXPECT_NE(springy.lag(4), 0);
}

TEST(BelSpringyCollectionViewFlowLayout, FingerOnOneAxisOfTheZeroPointIsAFinger) {
  for (const CGPoint finger : {CGPoint{0, 5}, CGPoint{5, 0}, CGPoint{1e-300, 0}}) {
    SpringyColumn springy(100);
    springy.view.finger = finger;
    springy.scrollBy(0, 30);
    ASSERT_NE(springy.spring(5), nullptr);
    EXPECT_GT(springy.lag(5), 0);
  }
}

TEST(BelSpringyCollectionViewFlowLayout, NewCellThatIsDisplacedWakesTheAnimator) {
  SpringyColumn springy(100);
  springy.view.finger = {60, 100};
  springy.scrollBy(0, 30);
  springy.settle();
  springy.view.currentBounds.origin.y += 110;
  springy.layout.prepareLayout();
  EXPECT_FALSE(springy.layout.dynamicAnimator()->isResting());
}

TEST(BelSpringyCollectionViewFlowLayout, CellsEndExactlyOnTheirAnchors) {
  SpringyColumn springy(100);
  springy.view.finger = {60, 300};
  for (int i = 0; i < 10; ++i) {
    springy.scrollBy(0, 17.3);
    springy.tick(1 / 60.0);
  }
  springy.view.finger = {};
  springy.settle();
  for (const auto& spring : springy.layout.dynamicAnimator()->behaviors()) {
    EXPECT_EQ(spring->items().front()->center(), spring->anchorPoint());
  }
}

TEST(BelSpringyCollectionViewFlowLayout, AnswersFromTheAnimatorNotFromTheFlow) {
  SpringyColumn springy(100);
  springy.view.finger = {60, 60 + 750};
  springy.scrollBy(0, 20);
  const auto cells = springy.layout.layoutAttributesForElementsInRect({{0, 0}, {120, 120}});
  ASSERT_THAT(rowsOf(cells), ElementsAre(0));
  EXPECT_EQ(cells.front(), springy.spring(0)->items().front());
  EXPECT_EQ(cells.front()->center().y, 70);
  EXPECT_EQ(springy.layout.layoutAttributesForItemAtIndexPath({0, 0}), cells.front());
}

TEST(BelSpringyCollectionViewFlowLayout, KnowsNoCellWithoutASpring) {
  const SpringyColumn springy(100);
  EXPECT_EQ(springy.layout.layoutAttributesForItemAtIndexPath({0, 50}), nullptr);
  EXPECT_THAT(springy.layout.layoutAttributesForElementsInRect({{0, 5000}, {120, 400}}), IsEmpty());
}

TEST(BelSpringyCollectionViewFlowLayout, ContentIsThatOfTheFlow) {
  const SpringyColumn springy(100);
  EXPECT_EQ(springy.layout.collectionViewContentSize(), (CGSize{120, 10 + 110.0 * 100}));
}

TEST(BelSpringyCollectionViewFlowLayout, MovesByItselfUntilItsAnimatorRests) {
  SpringyColumn springy(1);
  UICollectionViewLayout& layout = springy.layout;
  EXPECT_TRUE(layout.isResting());
  EXPECT_FALSE(layout.advance(1));
  springy.scrollBy(0, 50);
  EXPECT_FALSE(layout.isResting());
  EXPECT_TRUE(layout.advance(5));
  EXPECT_EQ(springy.lag(0), 0);
  EXPECT_TRUE(layout.isResting());
}

TEST(BelSpringyCollectionViewFlowLayout, ReloadDropsAllSpringsAndTheirDisplacement) {
  SpringyColumn springy(100);
  springy.scrollBy(0, 30);
  const auto before = springy.spring(1);
  springy.reload(2);
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), ElementsAre(IndexPath{0, 0}, IndexPath{0, 1}));
  EXPECT_NE(springy.spring(1), before);
  EXPECT_EQ(springy.lag(1), 0);
}

TEST(BelSpringyCollectionViewFlowLayout, ReloadToNothingLeavesNothing) {
  SpringyColumn springy(100);
  springy.scrollBy(0, 30);
  springy.reload(0);
  EXPECT_THAT(springy.layout.visibleIndexPathsSet(), IsEmpty());
  EXPECT_THAT(springy.layout.dynamicAnimator()->behaviors(), IsEmpty());
  EXPECT_TRUE(springy.layout.dynamicAnimator()->isResting());
  springy.scrollBy(0, 30);
}

TEST(BelSpringyCollectionViewFlowLayout, AnotherWidthMovesTheAnchors) {
  SpringyColumn springy(100);
  springy.scrollBy(0, 30);
  springy.view.resize({240, 480});
  springy.layout.prepareLayout();
  EXPECT_EQ(springy.anchor(0), (CGPoint{60, 60}));
  EXPECT_EQ(springy.anchor(1), (CGPoint{180, 60}));
  EXPECT_EQ(springy.lag(1), 0);
}

TEST(BelSpringyCollectionViewFlowLayout, AnotherHeightKeepsTheSprings) {
  SpringyColumn springy(100);
  const auto before = springy.spring(1);
  springy.view.resize({120, 700});
  springy.layout.prepareLayout();
  EXPECT_EQ(springy.spring(1), before);
  EXPECT_NE(springy.spring(7), nullptr);
}

TEST(BelSpringyCollectionViewFlowLayout, DoesNothingWithoutAView) {
  BelSpringyCollectionViewFlowLayout layout;
  layout.prepareLayout();
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{0, 10}, {320, 480}}));
  EXPECT_THAT(layout.layoutAttributesForElementsInRect(kEverything), IsEmpty());
}

TEST(BelSpringyCollectionViewFlowLayout, DelegateDecidesOnTheGrid) {
  FakeCollectionView view(7);
  FakeFlowDelegate delegate;
  delegate.uniform = true;
  view.flowDelegate = &delegate;
  BelSpringyCollectionViewFlowLayout layout;
  layout.setCollectionView(&view);
  layout.prepareLayout();
  EXPECT_EQ(layout.layoutAttributesForItemAtIndexPath({0, 4})->frame(),
            (CGRect{{115, 160}, {90, 140}}));
}

RC_GTEST_PROP(BelSpringyCollectionViewFlowLayoutProperty, SetAndSpringsAlwaysAgree, ()) {
  const auto between = [](int low, int high) { return *rc::gen::inRange(low, high + 1); };
  Springy springy(between(0, 300));
  for (int i = between(1, 30); i > 0; --i) {
    switch (between(0, 5)) {
      case 0:
        springy.reload(between(0, 300));
        break;
      case 1:
        springy.view.resize({between(0, 60) * 10.0, between(0, 60) * 10.0});
        springy.layout.prepareLayout();
        break;
      case 2:
        springy.view.finger = {between(0, 3) * 100.0, between(0, 9) * 100.0};
        break;
      case 3:
        springy.tick(between(1, 500) / 1000.0);
        break;
      default:
        RC_ASSERT(!springy.scrollBy(between(-20, 20), between(-400, 400)));
    }
    RC_ASSERT(springy.layout.visibleIndexPathsSet() == pathsOfSprings(springy.layout));
    // Every cell that shows has a spring, and no spring is sidewards of its anchor.
    const CGRect margin = CGRectInset(
        {springy.view.currentBounds.origin, springy.view.currentFrame.size}, -100, -100);
    for (const auto& spring : springy.layout.dynamicAnimator()->behaviors()) {
      const CGPoint anchor = spring->anchorPoint();
      RC_ASSERT(spring->items().front()->center().x == anchor.x);
      RC_ASSERT(CGRectIntersectsRect({{anchor.x - 22, anchor.y - 22}, {44, 44}}, margin));
    }
  }
}

}  // namespace
}  // namespace kindora
