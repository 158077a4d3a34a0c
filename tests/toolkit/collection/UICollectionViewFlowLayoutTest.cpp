// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/UICollectionViewFlowLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "tests/effects/springy/SpringyFixture.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Three items of 90 x 140 a line, like a grid of badges on a phone.
class UICollectionViewFlowLayoutGrid : public testing::Test {
 protected:
  UICollectionViewFlowLayoutGrid() { view.flowDelegate = &delegate; }

  UICollectionViewFlowLayout& prepared() {
    if (layout.collectionView() == nullptr) layout.setCollectionView(&view);
    layout.invalidateLayout();
    layout.prepareLayout();
    return layout;
  }
  [[nodiscard]] std::vector<CGRect> frames() { return framesOf(everything()); }
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> everything() {
    return prepared().layoutAttributesForElementsInRect(kEverything);
  }

  FakeCollectionView view{5};
  FakeFlowDelegate delegate;
  UICollectionViewFlowLayout layout;
};

TEST_F(UICollectionViewFlowLayoutGrid, SpreadsTheLeftoverWidthEvenlyBetweenTheItems) {
  // 300 points for three of 90 leave two gaps of 15.
  EXPECT_THAT(frames(), ElementsAre(CGRect{{10, 10}, {90, 140}}, CGRect{{115, 10}, {90, 140}},
                                    CGRect{{220, 10}, {90, 140}}, CGRect{{10, 160}, {90, 140}},
                                    CGRect{{115, 160}, {90, 140}}));
}

TEST_F(UICollectionViewFlowLayoutGrid, UniformDelegateGivesTheSameGrid) {
  const auto expected = frames();
  delegate.uniform = true;
  EXPECT_EQ(frames(), expected);
}

TEST_F(UICollectionViewFlowLayoutGrid, ItemsThatFitExactlyShareALine) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{93.25, 50}; };
  view.resize({20 + 3 * 93.25 + 2 * 10, 480});
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    EXPECT_THAT(frames()[2], (CGRect{{10 + 2 * 103.25, 10}, {93.25, 50}}));
    EXPECT_EQ(frames()[3].origin.y, 70);
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, ItemsThatDoNotQuiteFitMoveToTheNextLine) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{93.25, 50}; };
  view.resize({20 + 3 * 93.25 + 2 * 10 - 0.25, 480});
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    EXPECT_EQ(frames()[2].origin.y, 70);
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, LastLineHasTheSpacingOfTheOthers) {
  view.itemsOfSections = {4};
  delegate.sizeOfItem = [](IndexPath) { return CGSize{60, 60}; };
  // Four of 60 fit, three gaps of 20.
  for (const int count : {2, 4, 6}) {
    view.itemsOfSections = {count};
    for (const bool uniform : {false, true}) {
      delegate.uniform = uniform;
      EXPECT_EQ(frames()[1].origin.x, 90);
      EXPECT_EQ(frames().back().origin.x, count == 4 ? 250 : 90);
    }
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, SingleColumnStandsInTheMiddle) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{200, 50}; };
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    for (const CGRect& frame : frames()) EXPECT_EQ(frame.origin.x, 60);
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, ItemWiderThanTheViewHasALineOfItsOwn) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{500, 50}; };
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    EXPECT_THAT(frames()[1], (CGRect{{10, 70}, {500, 50}}));
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, LowerItemsStandInTheMiddleOfTheirLine) {
  delegate.sizeOfItem = [](IndexPath path) {
    return path.row == 1 ? CGSize{90, 140} : CGSize{90, 40};
  };
  EXPECT_THAT(frames(), ElementsAre(CGRect{{10, 60}, {90, 40}}, CGRect{{115, 10}, {90, 140}},
                                    CGRect{{220, 60}, {90, 40}}, CGRect{{10, 160}, {90, 40}},
                                    CGRect{{115, 160}, {90, 40}}));
}

TEST_F(UICollectionViewFlowLayoutGrid, LinesOfDifferentItemsHaveTheirOwnSpacing) {
  delegate.sizeOfItem = [](IndexPath path) { return CGSize{path.row < 2 ? 140.0 : 80.0, 50}; };
  EXPECT_THAT(frames(), ElementsAre(CGRect{{10, 10}, {140, 50}}, CGRect{{170, 10}, {140, 50}},
                                    CGRect{{10, 70}, {80, 50}}, CGRect{{120, 70}, {80, 50}},
                                    CGRect{{230, 70}, {80, 50}}));
}

TEST_F(UICollectionViewFlowLayoutGrid, ContentEndsBelowTheLastLine) {
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    EXPECT_EQ(prepared().collectionViewContentSize(), (CGSize{320, 310}));
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, EmptySectionHasNothingButItsInsets) {
  view.itemsOfSections = {0};
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    EXPECT_THAT(everything(), IsEmpty());
    EXPECT_EQ(layout.collectionViewContentSize(), (CGSize{320, 20}));
  }
  EXPECT_EQ(delegate.sizesAsked, 0);
}

TEST_F(UICollectionViewFlowLayoutGrid, SectionsStandOneBelowAnother) {
  view.itemsOfSections = {2, 0, 1};
  const auto cells = everything();
  ASSERT_EQ(cells.size(), 3U);
  EXPECT_EQ(cells[0]->indexPath(), (IndexPath{0, 0}));
  EXPECT_EQ(cells[1]->indexPath(), (IndexPath{0, 1}));
  EXPECT_EQ(cells[2]->indexPath(), (IndexPath{2, 0}));
  EXPECT_EQ(cells[2]->frame(), (CGRect{{10, 160 + 20 + 10}, {90, 140}}));
  EXPECT_EQ(layout.collectionViewContentSize(), (CGSize{320, 160 + 20 + 160}));
}

TEST_F(UICollectionViewFlowLayoutGrid, NoSectionsHaveNoContent) {
  view.itemsOfSections = {};
  EXPECT_EQ(prepared().collectionViewContentSize(), (CGSize{320, 0}));
}

TEST_F(UICollectionViewFlowLayoutGrid, RectFindsWhatOverlapsIt) {
  prepared();
  EXPECT_THAT(rowsOf(layout.layoutAttributesForElementsInRect({{0, 0}, {320, 480}})),
              ElementsAre(0, 1, 2, 3, 4));
  EXPECT_THAT(rowsOf(layout.layoutAttributesForElementsInRect({{110, 20}, {10, 10}})),
              ElementsAre(1));
  EXPECT_THAT(rowsOf(layout.layoutAttributesForElementsInRect({{0, 149}, {320, 12}})),
              ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(UICollectionViewFlowLayoutGrid, TouchingEdgesDoNotOverlap) {
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    prepared();
    // Exactly the gaps between the lines and between the first two columns.
    EXPECT_THAT(layout.layoutAttributesForElementsInRect({{0, 150}, {320, 10}}), IsEmpty());
    EXPECT_THAT(layout.layoutAttributesForElementsInRect({{100, 0}, {15, 480}}), IsEmpty());
    EXPECT_THAT(layout.layoutAttributesForElementsInRect({{0, 300}, {320, 100}}), IsEmpty());
    EXPECT_THAT(layout.layoutAttributesForElementsInRect({{0, -90}, {320, 100}}), IsEmpty());
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, FindsAnItemByItsPath) {
  for (const bool uniform : {false, true}) {
    delegate.uniform = uniform;
    prepared();
    const auto cell = layout.layoutAttributesForItemAtIndexPath({0, 4});
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->indexPath(), (IndexPath{0, 4}));
    EXPECT_EQ(cell->frame(), (CGRect{{115, 160}, {90, 140}}));
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, KnowsNoItemOutsideItsSections) {
  prepared();
  for (const IndexPath path :
       {IndexPath{0, 5}, IndexPath{0, -1}, IndexPath{1, 0}, IndexPath{-1, 0}}) {
    EXPECT_EQ(layout.layoutAttributesForItemAtIndexPath(path), nullptr);
  }
}

TEST_F(UICollectionViewFlowLayoutGrid, AnswersWithFreshAttributesEachTime) {
  prepared();
  const auto first = layout.layoutAttributesForItemAtIndexPath({0, 0});
  first->setCenter({999, 999});
  EXPECT_EQ(layout.layoutAttributesForItemAtIndexPath({0, 0})->frame(),
            (CGRect{{10, 10}, {90, 140}}));
}

TEST_F(UICollectionViewFlowLayoutGrid, AsksOneSizeOfAUniformSection) {
  delegate.uniform = true;
  view.itemsOfSections = {1000000};
  prepared();
  EXPECT_EQ(rowsOf(layout.layoutAttributesForElementsInRect({{0, 1e7}, {320, 480}})).size(), 12U);
  EXPECT_EQ(delegate.sizesAsked, 1);
}

TEST_F(UICollectionViewFlowLayoutGrid, AsksTheSizesAgainOnlyForALineThatIsLookedAt) {
  view.itemsOfSections = {3000};
  prepared();
  delegate.sizesAsked = 0;
  EXPECT_EQ(layout.layoutAttributesForElementsInRect({{0, 1e4}, {320, 50}}).size(), 3U);
  EXPECT_EQ(delegate.sizesAsked, 3);
}

TEST_F(UICollectionViewFlowLayoutGrid, PreparesAgainOnlyWhenInvalidated) {
  prepared();
  view.itemsOfSections = {1};
  layout.prepareLayout();
  EXPECT_EQ(layout.layoutAttributesForElementsInRect(kEverything).size(), 5U);
  layout.invalidateLayout();
  layout.prepareLayout();
  EXPECT_EQ(layout.layoutAttributesForElementsInRect(kEverything).size(), 1U);
}

TEST_F(UICollectionViewFlowLayoutGrid, PreparesAgainWhenTheWidthHasChanged) {
  prepared();
  view.resize({210, 480});
  layout.prepareLayout();
  EXPECT_THAT(framesOf(layout.layoutAttributesForElementsInRect(kEverything))[1],
              (CGRect{{110, 10}, {90, 140}}));
  EXPECT_EQ(layout.collectionViewContentSize().width, 210);
}

TEST_F(UICollectionViewFlowLayoutGrid, DoesNotPrepareAgainForAScrollOrAnotherHeight) {
  prepared();
  delegate.sizesAsked = 0;
  view.currentBounds.origin.y = 100;
  view.resize({320, 700});
  layout.prepareLayout();
  EXPECT_EQ(delegate.sizesAsked, 0);
}

TEST_F(UICollectionViewFlowLayoutGrid, OnlyAnotherWidthInvalidatesIt) {
  prepared();
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{0, 50}, {320, 480}}));
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {320, 700}}));
  EXPECT_TRUE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {321, 480}}));
}

TEST(UICollectionViewFlowLayout, WithoutADelegateUsesItsOwnSizes) {
  FakeCollectionView view(4, {104, 480});
  UICollectionViewFlowLayout layout;
  layout.setCollectionView(&view);
  layout.setItemSize({30, 20});
  layout.setMinimumInteritemSpacing(4);
  layout.setMinimumLineSpacing(6);
  layout.setSectionInset({1, 2, 3, 4});
  layout.prepareLayout();
  EXPECT_THAT(framesOf(layout.layoutAttributesForElementsInRect(kEverything)),
              ElementsAre(CGRect{{2, 1}, {30, 20}}, CGRect{{36, 1}, {30, 20}},
                          CGRect{{70, 1}, {30, 20}}, CGRect{{2, 27}, {30, 20}}));
  EXPECT_EQ(layout.collectionViewContentSize(), (CGSize{104, 50}));
}

TEST(UICollectionViewFlowLayout, ChangeOfItsOwnSizesInvalidatesIt) {
  FakeCollectionView view(1);
  UICollectionViewFlowLayout layout;
  layout.setCollectionView(&view);
  const std::function<void()> changes[] = {[&] {
                                             layout.setItemSize({60, 60});
                                           },
                                           [&] { layout.setMinimumInteritemSpacing(20); },
                                           [&] { layout.setMinimumLineSpacing(20); },
                                           [&] {
                                             layout.setSectionInset({5, 5, 5, 5});
                                           }};
  for (const auto& change : changes) {
    layout.prepareLayout();
    EXPECT_EQ(layout.layoutAttributesForElementsInRect(kEverything).size(), 1U);
    change();
    EXPECT_THAT(layout.layoutAttributesForElementsInRect(kEverything), IsEmpty());
  }
}

TEST(UICollectionViewFlowLayout, NeverMovesByItself) {
  UICollectionViewFlowLayout layout;
  EXPECT_TRUE(layout.isResting());
  EXPECT_FALSE(layout.advance(1));
}

TEST(UICollectionViewFlowLayout, LaysOutNothingWithoutAView) {
  UICollectionViewFlowLayout layout;
  layout.prepareLayout();
  EXPECT_THAT(layout.layoutAttributesForElementsInRect(kEverything), IsEmpty());
  EXPECT_EQ(layout.collectionViewContentSize(), CGSize{});
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {1, 1}}));
}

TEST(UICollectionViewFlowLayout, ForgetsTheViewThatIsTakenOut) {
  UICollectionViewFlowLayout layout;
  {
    FakeCollectionView view(3);
    layout.setCollectionView(&view);
    layout.prepareLayout();
    layout.setCollectionView(nullptr);
  }
  EXPECT_THAT(layout.layoutAttributesForElementsInRect(kEverything), IsEmpty());
}

TEST(UICollectionViewFlowLayout, ItemsWithoutSizeOrRoomDoNoHarm) {
  for (const double width : {0.0, 5.0, 320.0}) {
    for (const CGSize size : {CGSize{0, 0}, CGSize{0, 10}, CGSize{10, 0}}) {
      FakeCollectionView view(10, {width, 480});
      UICollectionViewFlowLayout layout;
      layout.setMinimumInteritemSpacing(0);
      layout.setMinimumLineSpacing(0);
      layout.setItemSize(size);
      layout.setCollectionView(&view);
      layout.prepareLayout();
      EXPECT_NE(layout.layoutAttributesForItemAtIndexPath({0, 9}), nullptr);
    }
  }
}

// Coarse values, so that exact fits are frequent and sums are exact.
double quarters(int low, int high) { return *rc::gen::inRange(low * 4, high * 4 + 1) / 4.0; }

RC_GTEST_PROP(UICollectionViewFlowLayoutProperty, KnowingThatSizesAreEqualChangesNothing, ()) {
  FakeCollectionView view(*rc::gen::inRange(0, 60), {quarters(0, 400), 480});
  FakeFlowDelegate delegate;
  const CGSize size{quarters(1, 200), quarters(1, 200)};
  delegate.sizeOfItem = [size](IndexPath) { return size; };
  delegate.interitemSpacing = quarters(0, 20);
  delegate.lineSpacing = quarters(0, 20);
  delegate.insets = {quarters(0, 20), quarters(0, 20), quarters(0, 20), quarters(0, 20)};
  view.flowDelegate = &delegate;
  UICollectionViewFlowLayout each;
  each.setCollectionView(&view);
  each.prepareLayout();
  delegate.uniform = true;
  UICollectionViewFlowLayout uniform;
  uniform.setCollectionView(&view);
  uniform.prepareLayout();

  const auto rounded = [](std::vector<CGRect> frames) {
    for (CGRect& frame : frames) frame.origin.x = std::round(frame.origin.x * 1e6);
    return frames;
  };
  RC_ASSERT(rounded(framesOf(uniform.layoutAttributesForElementsInRect(kEverything))) ==
            rounded(framesOf(each.layoutAttributesForElementsInRect(kEverything))));
  RC_ASSERT(uniform.collectionViewContentSize() == each.collectionViewContentSize());
}

RC_GTEST_PROP(UICollectionViewFlowLayoutProperty, LinesAreFullAndBelowOneAnotherAndInsideTheView,
              ()) {
  FakeCollectionView view(*rc::gen::inRange(1, 40), {quarters(100, 400), 480});
  FakeFlowDelegate delegate;
  std::vector<CGSize> sizes;
  for (int i = 0; i < view.itemsOfSections[0]; ++i) {
    sizes.push_back({quarters(1, 80), quarters(1, 80)});
  }
  delegate.sizeOfItem = [&](IndexPath path) { return sizes[static_cast<std::size_t>(path.row)]; };
  view.flowDelegate = &delegate;
  UICollectionViewFlowLayout layout;
  layout.setCollectionView(&view);
  layout.prepareLayout();

  const auto cells = layout.layoutAttributesForElementsInRect(kEverything);
  RC_ASSERT(cells.size() == sizes.size());
  const double left = delegate.insets.left;
  const double right = view.currentBounds.size.width - delegate.insets.right;
  constexpr double kRounding = 1e-9;
  double lineWidth = 0;  // packed as closely as allowed
  double lineTop = 0;
  double lineBottom = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const CGRect frame = cells[i]->frame();
    RC_ASSERT(cells[i]->indexPath().row == static_cast<int>(i));
    RC_ASSERT(frame.size == sizes[i]);
    RC_ASSERT(frame.origin.x >= left - kRounding);
    RC_ASSERT(frame.origin.x + frame.size.width <= right + kRounding);
    const double packed = lineWidth + delegate.interitemSpacing + frame.size.width;
    if (i > 0 && packed <= right - left) {
      const CGRect before = cells[i - 1]->frame();
      RC_ASSERT(frame.origin.x >=
                before.origin.x + before.size.width + delegate.interitemSpacing - kRounding);
      lineWidth = packed;
    } else {
      lineTop = i > 0 ? lineBottom + delegate.lineSpacing : delegate.insets.top;
      lineBottom = lineTop;
      lineWidth = frame.size.width;
    }
    RC_ASSERT(frame.origin.y >= lineTop - kRounding);
    // Lower items stand in the middle, so the line ends as far below them as it begins above.
    lineBottom = std::max(lineBottom, 2 * frame.origin.y + frame.size.height - lineTop);
    RC_ASSERT(layout.layoutAttributesForItemAtIndexPath({0, static_cast<int>(i)})->frame() ==
              frame);
  }
}

RC_GTEST_PROP(UICollectionViewFlowLayoutProperty, RectFindsExactlyWhatOverlapsIt, ()) {
  FakeCollectionView view(*rc::gen::inRange(0, 40));
  view.itemsOfSections.push_back(*rc::gen::inRange(0, 20));
  FakeFlowDelegate delegate;
  delegate.uniform = *rc::gen::arbitrary<bool>();
  if (!delegate.uniform) {
    delegate.sizeOfItem = [](IndexPath path) {
      return CGSize{20.0 + path.row * 37 % 90, 20.0 + path.row * 53 % 70};
    };
  }
  view.flowDelegate = &delegate;
  UICollectionViewFlowLayout layout;
  layout.setCollectionView(&view);
  layout.prepareLayout();
  const CGRect rect{{quarters(-50, 350), quarters(-50, 2500)},
                    {quarters(0, 350), quarters(0, 900)}};
  std::vector<CGRect> expected;
  for (const CGRect& frame : framesOf(layout.layoutAttributesForElementsInRect(kEverything))) {
    if (CGRectIntersectsRect(frame, rect)) expected.push_back(frame);
  }
  RC_ASSERT(framesOf(layout.layoutAttributesForElementsInRect(rect)) == expected);
}

}  // namespace
}  // namespace kindora
