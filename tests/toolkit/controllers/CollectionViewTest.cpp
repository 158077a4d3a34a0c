// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/CollectionView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <vector>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NumberCell final : public UICollectionViewCell {
 public:
  int number = -1;
};

// Items that are numbered through, in one section.
class Source final : public UICollectionViewDataSource {
 public:
  int count = 0;
  CollectionView* view = nullptr;
  int filled = 0;
  std::vector<IndexPath> selected;

  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int /*section*/) override { return count; }
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath path) override {
    ++filled;
    auto cell = std::dynamic_pointer_cast<NumberCell>(view->dequeueReusableCell("number"));
    cell->number = path.row;
    return cell;
  }
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override { selected.push_back(path); }
};

// 300 items of 90 x 140 on springs, three a line of 150 points; 320 x 480 points are visible.
class CollectionViewTest : public ::testing::Test {
 protected:
  CollectionViewTest() {
    source.view = &view;
    source.count = 300;
    layout.setItemSize({90, 140});
    view.registerCell("number", [this] {
      ++made;
      return std::make_shared<NumberCell>();
    });
    view.setDataSource(&source);
    view.setFrame({{0, 0}, {320, 480}});
    view.reloadData();
  }

  // Where an item is at rest.
  static CGRect resting(int item) {
    return {{10 + 105.0 * (item % 3), 10 + 150.0 * (item / 3)}, {90, 140}};
  }
  [[nodiscard]] CGRect frame(int item) const {
    return view.shownCells().at(IndexPath{0, item}).frame;
  }
  [[nodiscard]] int number(int item) const {
    return dynamic_cast<const NumberCell&>(*view.shownCells().at(IndexPath{0, item}).cell).number;
  }
  [[nodiscard]] bool isShown(int item) const {
    return view.shownCells().contains(IndexPath{0, item});
  }
  // In points down.
  [[nodiscard]] double lag(int item) const { return frame(item).origin.y - resting(item).origin.y; }
  void expectConsistent() const {
    std::set<const UICollectionViewCell*> cells;
    for (const auto& [path, place] : view.shownCells()) {
      EXPECT_EQ(dynamic_cast<const NumberCell&>(*place.cell).number, path.row);
      EXPECT_TRUE(cells.insert(place.cell.get()).second) << "one cell in two places";
    }
  }
  // Lets springs settle; the number of ticks that it took.
  int settle() {
    int ticks = 0;
    while (!view.isResting() && ticks < 1000) {
      view.advance(1.0 / 60);
      ++ticks;
    }
    return ticks;
  }

  Source source;
  int made = 0;
  BelSpringyCollectionViewFlowLayout layout;
  CollectionView view{layout};
};

// --- What is shown ---

TEST_F(CollectionViewTest, ShowsWhatIsVisibleOrNear) {
  // 580 points with the margin below: lines 0 to 3.
  EXPECT_EQ(view.shownCells().size(), 12u);
  EXPECT_TRUE(isShown(0));
  EXPECT_TRUE(isShown(11));
  EXPECT_FALSE(isShown(12));
  expectConsistent();
}

TEST_F(CollectionViewTest, PlacesItsCellsWhereTheLayoutSays) {
  for (int item = 0; item < 12; ++item) EXPECT_EQ(frame(item), resting(item)) << item;
}

TEST_F(CollectionViewTest, KnowsTheSizeOfAllItsContent) {
  EXPECT_EQ(view.contentSize(), (CGSize{320, 100 * 150.0 + 10}));
}

TEST_F(CollectionViewTest, WithoutASourceItIsEmpty) {
  BelSpringyCollectionViewFlowLayout other;
  CollectionView bare(other);
  bare.setFrame({{0, 0}, {320, 480}});
  bare.reloadData();
  EXPECT_EQ(bare.numberOfSections(), 0);
  EXPECT_EQ(bare.numberOfItemsInSection(0), 0);
  EXPECT_THAT(bare.shownCells(), IsEmpty());
  bare.select({0, 0});
}

TEST_F(CollectionViewTest, WithoutItemsItIsEmptyAndRests) {
  source.count = 0;
  view.reloadData();
  EXPECT_THAT(view.shownCells(), IsEmpty());
  view.setPanLocation({10, 10});
  view.setContentOffset({0, 50});
  EXPECT_TRUE(view.isResting());
}

TEST_F(CollectionViewTest, TakesItselfOutOfTheLayoutWhenItGoes) {
  BelSpringyCollectionViewFlowLayout other;
  {
    const CollectionView passing(other);
    EXPECT_EQ(other.collectionView(), &passing);
  }
  EXPECT_EQ(other.collectionView(), nullptr);
}

TEST_F(CollectionViewTest, AnUnregisteredKindStops) {
  EXPECT_DEATH(static_cast<void>(view.dequeueReusableCell("other")),
               "fatal error: no cell is registered as \"other\"");
}

// --- Scrolling ---

TEST_F(CollectionViewTest, CellsComeWhileItScrolls) {
  for (int y = 0; y <= 3000; y += 25) {
    view.setContentOffset({0, static_cast<double>(y)});
    view.advance(1.0 / 60);
    expectConsistent();
    // Every item whose resting place is in sight has a cell.
    for (int item = 0; item < 300; ++item) {
      const bool visible = CGRectIntersectsRect(resting(item), view.bounds());
      if (visible) {
        EXPECT_TRUE(isShown(item)) << item << " at " << y;
      }
    }
  }
}

TEST_F(CollectionViewTest, CellsThatLeaveAreUsedAgain) {
  for (int y = 0; y <= 14000; y += 50) {
    view.setContentOffset({0, static_cast<double>(y)});
    view.advance(1.0 / 60);
  }
  EXPECT_LE(made, 21);
  EXPECT_GT(source.filled, 250);
}

TEST_F(CollectionViewTest, ACellThatStaysIsNotFilledAgain) {
  const auto cell = view.shownCells().at(IndexPath{0, 6}).cell;
  const int filled = source.filled;
  view.setContentOffset({0, 20});
  EXPECT_EQ(view.shownCells().at(IndexPath{0, 6}).cell, cell);
  EXPECT_EQ(source.filled, filled);
}

TEST_F(CollectionViewTest, ALeapShowsOtherCellsAtOnce) {
  view.setContentOffset({0, 7500});
  EXPECT_TRUE(isShown(150));
  EXPECT_FALSE(isShown(0));
  expectConsistent();
  EXPECT_LE(made, 24);
}

TEST_F(CollectionViewTest, ComingBackItShowsTheFirstCellsAgain) {
  view.setContentOffset({0, 7500});
  settle();
  view.setContentOffset({0, 0});
  settle();
  for (int item = 0; item < 12; ++item) {
    EXPECT_EQ(number(item), item);
    EXPECT_EQ(frame(item), resting(item));
  }
}

TEST_F(CollectionViewTest, TheSameOffsetIsNoScroll) {
  view.setContentOffset({0, 20});
  settle();
  const QSignalSpy changes(&view, &CollectionView::changed);
  view.setContentOffset({0, 20});
  EXPECT_EQ(changes.count(), 0);
  EXPECT_TRUE(view.isResting());
}

TEST_F(CollectionViewTest, SpringsExistOnlyForWhatIsNear) {
  source.count = 10000;
  view.reloadData();
  for (int y = 0; y < 5000; y += 100) {
    view.setContentOffset({0, static_cast<double>(y)});
    EXPECT_LE(layout.visibleIndexPathsSet().size(), 18u);
    EXPECT_LE(view.shownCells().size(), 18u);
  }
}

// --- Springs ---

TEST_F(CollectionViewTest, CellsLagTheMoreTheFartherTheyAreFromTheFinger) {
  view.setPanLocation({160, 80});
  view.setContentOffset({0, 20});
  EXPECT_GT(lag(1), -1);
  EXPECT_LT(lag(1), 1);
  EXPECT_GT(lag(4), lag(1));
  EXPECT_GT(lag(7), lag(4));
  EXPECT_GT(lag(10), lag(7));
  EXPECT_LE(lag(10), 20);
}

TEST_F(CollectionViewTest, ScrollingUpLagsTheOtherWay) {
  view.setContentOffset({0, 300});
  settle();
  view.setPanLocation({160, 380});
  view.setContentOffset({0, 280});
  EXPECT_LT(lag(13), 0);
  EXPECT_GE(lag(13), -20);
}

TEST_F(CollectionViewTest, WithoutAFingerItLagsFromTheZeroPoint) {
  view.setContentOffset({0, 15});
  // Item 4 rests about (160, 230): 390 / 1500 of the scroll.
  EXPECT_NEAR(lag(4), 15 * 390.0 / 1500, 1e-9);
}

TEST_F(CollectionViewTest, CellsMoveUpAndDownOnly) {
  view.setPanLocation({10, 10});
  view.setContentOffset({0, 40});
  for (int item = 0; item < 12; ++item) EXPECT_EQ(frame(item).origin.x, resting(item).origin.x);
}

TEST_F(CollectionViewTest, SettlesExactlyWhereItRests) {
  view.setPanLocation({160, 80});
  for (int y = 10; y <= 200; y += 10) {
    view.setContentOffset({0, static_cast<double>(y)});
    view.advance(1.0 / 60);
  }
  view.setPanLocation({});
  EXPECT_FALSE(view.isResting());
  EXPECT_LT(settle(), 300);
  for (const auto& [path, place] : view.shownCells()) {
    EXPECT_EQ(place.frame, resting(path.row)) << path.row;
  }
}

TEST_F(CollectionViewTest, AtRestNothingMovesAndNobodyIsTold) {
  EXPECT_TRUE(view.isResting());
  const QSignalSpy changes(&view, &CollectionView::changed);
  view.advance(1);
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(CollectionViewTest, TellsEachMove) {
  view.setContentOffset({0, 20});
  const QSignalSpy changes(&view, &CollectionView::changed);
  view.advance(1.0 / 60);
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(CollectionViewTest, NoCellLeavesSightWhileItSettles) {
  view.setPanLocation({160, 80});
  view.setContentOffset({0, 300});
  view.setPanLocation({});
  for (int i = 0; i < 300; ++i) {
    view.advance(1.0 / 60);
    for (int item = 6; item < 15; ++item) EXPECT_TRUE(isShown(item)) << item;
  }
}

// --- Reloads and sizes ---

TEST_F(CollectionViewTest, AReloadAsksForEverythingAnew) {
  const int filled = source.filled;
  const int before = made;
  view.reloadData();
  EXPECT_EQ(source.filled, filled + 12);
  EXPECT_EQ(made, before);
  expectConsistent();
}

TEST_F(CollectionViewTest, AReloadKeepsEachCellInItsPlace) {
  std::vector<UICollectionViewCellRef> before;
  for (const auto& [path, place] : view.shownCells()) before.push_back(place.cell);
  view.reloadData();
  std::vector<UICollectionViewCellRef> after;
  for (const auto& [path, place] : view.shownCells()) after.push_back(place.cell);
  EXPECT_EQ(after, before);
}

TEST_F(CollectionViewTest, AReloadPutsEveryCellToRest) {
  view.setContentOffset({0, 100});
  ASSERT_FALSE(view.isResting());
  view.reloadData();
  EXPECT_TRUE(view.isResting());
  EXPECT_EQ(frame(4), resting(4));
}

TEST_F(CollectionViewTest, AReloadShowsMoreAndFewerItems) {
  source.count = 2;
  view.reloadData();
  EXPECT_EQ(view.shownCells().size(), 2u);
  EXPECT_EQ(view.contentSize().height, 160);
  source.count = 7;
  view.reloadData();
  EXPECT_EQ(view.shownCells().size(), 7u);
  expectConsistent();
}

TEST_F(CollectionViewTest, FewerItemsThanWereScrolledToShowNothing) {
  view.setContentOffset({0, 7500});
  source.count = 3;
  view.reloadData();
  EXPECT_THAT(view.shownCells(), IsEmpty());
  view.setContentOffset({0, 0});
  EXPECT_EQ(view.shownCells().size(), 3u);
}

TEST_F(CollectionViewTest, AnotherWidthLaysOutAnew) {
  view.setContentOffset({0, 20});
  view.setFrame({{0, 0}, {220, 480}});
  EXPECT_TRUE(view.isResting());
  // Two of 90 points a line, 10 from the edges.
  EXPECT_EQ(frame(0), (CGRect{{10, 10}, {90, 140}}));
  EXPECT_EQ(frame(1), (CGRect{{120, 10}, {90, 140}}));
  EXPECT_EQ(frame(2), (CGRect{{10, 160}, {90, 140}}));
  expectConsistent();
}

TEST_F(CollectionViewTest, AnotherHeightShowsMoreAndKeepsTheSprings) {
  view.setPanLocation({160, 80});
  view.setContentOffset({0, 20});
  const double before = lag(7);
  view.setFrame({{0, 0}, {320, 780}});
  EXPECT_EQ(lag(7), before);
  EXPECT_TRUE(isShown(17));
}

TEST_F(CollectionViewTest, WhoeverInvalidatedTheLayoutHasItLaidOut) {
  layout.invalidateLayout();
  view.layoutIfNeeded();
  EXPECT_EQ(view.contentSize().height, 100 * 150.0 + 10);
  EXPECT_EQ(view.shownCells().size(), 12u);
  expectConsistent();
}

// --- Selecting ---

TEST_F(CollectionViewTest, SelectingTellsTheSource) {
  view.select({0, 4});
  EXPECT_THAT(source.selected, ElementsAre(IndexPath{0, 4}));
  EXPECT_THAT(view.indexPathsForSelectedItems(), ElementsAre(IndexPath{0, 4}));
}

TEST_F(CollectionViewTest, TheLastSelectionCounts) {
  view.select({0, 4});
  view.select({0, 5});
  EXPECT_THAT(view.indexPathsForSelectedItems(), ElementsAre(IndexPath{0, 5}));
}

TEST_F(CollectionViewTest, WhatIsNotShownCannotBeSelected) {
  view.select({0, 200});
  view.select({1, 0});
  EXPECT_THAT(source.selected, IsEmpty());
  EXPECT_THAT(view.indexPathsForSelectedItems(), IsEmpty());
}

TEST_F(CollectionViewTest, AReloadForgetsTheSelection) {
  view.select({0, 4});
  view.reloadData();
  EXPECT_THAT(view.indexPathsForSelectedItems(), IsEmpty());
}

TEST_F(CollectionViewTest, ARecycledCellIsNoLongerPressed) {
  const auto cell = view.shownCells().at(IndexPath{0, 0}).cell;
  cell->setHighlighted(true, false);
  view.setContentOffset({0, 7500});
  EXPECT_FALSE(cell->isHighlighted());
}

}  // namespace
}  // namespace kindora
