// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/BasicCollectionView.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/collection/ReusableCell.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Items of 100 x 10 points below each other, and then a line on each.
class ColumnLayout final : public UICollectionViewLayout {
 public:
  void invalidateLayout() override { ++invalidations; }
  void prepareLayout() override { ++preparations; }
  [[nodiscard]] CGSize collectionViewContentSize() const override { return {}; }
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> layoutAttributesForElementsInRect(
      const CGRect& rect) const override {
    std::vector<UICollectionViewLayoutAttributesRef> elements;
    for (const std::optional<std::string>& kind : {std::optional<std::string>(), lineKind}) {
      for (int item = 0; item < collectionView()->numberOfItemsInSection(0); ++item) {
        const CGRect frame{{0, 10.0 * item}, {100, 10}};
        if (!CGRectIntersectsRect(frame, rect)) continue;
        elements.push_back(
            std::make_shared<UICollectionViewLayoutAttributes>(IndexPath{0, item}, frame, kind));
        if (kind) elements.back()->setZIndex(lineZIndex);
      }
    }
    return elements;
  }
  [[nodiscard]] UICollectionViewLayoutAttributesRef layoutAttributesForItemAtIndexPath(
      IndexPath /*path*/) const override {
    return nullptr;
  }
  [[nodiscard]] bool shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) override {
    boundsWhenAsked = collectionView()->bounds();
    return newBounds.size != boundsWhenAsked.size;
  }

  const std::optional<std::string> lineKind = "line";
  int lineZIndex = 1;
  int invalidations = 0;
  int preparations = 0;
  CGRect boundsWhenAsked;
};

class Cell final : public ReusableCell {};

class Source final : public BasicCollectionViewDataSource<Cell> {
 public:
  int count = 0;
  BasicCollectionView<Cell>* view = nullptr;
  std::vector<int> asked;
  std::vector<IndexPath> selected;

  int collectionViewNumberOfItemsInSection(int /*section*/) override { return count; }
  std::shared_ptr<Cell> collectionViewCellForItemAtIndexPath(IndexPath path) override {
    asked.push_back(path.row);
    return view->dequeueReusableCell("cell");
  }
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override { selected.push_back(path); }
};

// A view whose every step is the test's.
class View final : public BasicCollectionView<Cell> {
 public:
  using BasicCollectionView::forgetCells;
  using BasicCollectionView::layOut;
  using BasicCollectionView::Placed;
  using BasicCollectionView::takeBounds;

  explicit View(std::shared_ptr<UICollectionViewLayout> layout)
      : BasicCollectionView(std::move(layout)) {}
  [[nodiscard]] CGRect frame() const override { return {}; }
  [[nodiscard]] CGPoint panLocation() const override { return {}; }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override { return nullptr; }

  Source* source = nullptr;

 private:
  [[nodiscard]] DataSource* dataSource() const override { return source; }
};

class BasicCollectionViewTest : public ::testing::Test {
 protected:
  BasicCollectionViewTest() {
    source.view = &view;
    source.count = 20;
    view.source = &source;
    view.registerCell("cell", [this] { return make(); });
  }

  std::shared_ptr<Cell> make() {
    ++made;
    return std::make_shared<Cell>();
  }
  // The part of the column that begins with that item.
  std::vector<View::Placed> show(int item, int items) {
    return view.layOut({{0, 10.0 * item}, {100, 10.0 * items}});
  }
  // "c3" for the cell of item 3, "l3" for the line on it.
  static std::vector<std::string> names(const std::vector<View::Placed>& placed) {
    std::vector<std::string> all;
    for (const auto& [cell, attributes] : placed) {
      all.push_back((attributes->decorationKind() ? "l" : "c") +
                    std::to_string(attributes->indexPath().row));
    }
    return all;
  }
  [[nodiscard]] std::vector<std::shared_ptr<Cell>> cells() const {
    std::vector<std::shared_ptr<Cell>> all;
    for (int item = 0; item < source.count; ++item) {
      if (auto cell = view.cellForItemAtIndexPath({0, item})) all.push_back(std::move(cell));
    }
    return all;
  }

  const std::shared_ptr<ColumnLayout> layout = std::make_shared<ColumnLayout>();
  Source source;
  View view{layout};
  int made = 0;
};

TEST_F(BasicCollectionViewTest, HasACellForWhatLiesInTheRectangleAndForNothingElse) {
  EXPECT_THAT(names(show(3, 3)), ElementsAre("c3", "c4", "c5"));
  EXPECT_NE(view.cellForItemAtIndexPath({0, 5}), nullptr);
  EXPECT_EQ(view.cellForItemAtIndexPath({0, 6}), nullptr);
  EXPECT_EQ(made, 3);
}

TEST_F(BasicCollectionViewTest, PreparesTheLayoutEachTime) {
  show(0, 1);
  show(0, 1);
  EXPECT_EQ(layout->preparations, 2);
}

TEST_F(BasicCollectionViewTest, DecorationsComeOnceTheirKindIsRegistered) {
  EXPECT_THAT(names(show(0, 2)), ElementsAre("c0", "c1"));
  view.registerDecorationView("line", [this] { return make(); });
  const auto placed = show(0, 2);
  EXPECT_THAT(names(placed), ElementsAre("c0", "c1", "l0", "l1"));
  EXPECT_EQ(placed.back().cell->reuseIdentifier(), "line");
  EXPECT_THAT(source.asked, ElementsAre(0, 1)) << "asked for cells only";
}

TEST_F(BasicCollectionViewTest, WhatLiesHigherComesLater) {
  view.registerDecorationView("line", [this] { return make(); });
  layout->lineZIndex = -1;
  EXPECT_THAT(names(show(0, 2)), ElementsAre("l0", "l1", "c0", "c1"));
  layout->lineZIndex = 0;
  EXPECT_THAT(names(show(0, 2)), ElementsAre("c0", "c1", "l0", "l1")) << "as the layout tells them";
}

TEST_F(BasicCollectionViewTest, AsksOnlyForWhatArrives) {
  show(0, 3);
  const auto stays = view.cellForItemAtIndexPath({0, 2});
  source.asked.clear();
  show(2, 3);
  EXPECT_THAT(source.asked, ElementsAre(3, 4));
  EXPECT_EQ(view.cellForItemAtIndexPath({0, 2}), stays);
}

TEST_F(BasicCollectionViewTest, WhatLeavesIsUsedForWhatArrives) {
  show(0, 3);
  const auto first = cells();
  show(10, 3);
  EXPECT_THAT(cells(), ::testing::UnorderedElementsAreArray(first));
  EXPECT_EQ(made, 3);
}

TEST_F(BasicCollectionViewTest, WhatLeavesNoLongerLooksPressed) {
  show(0, 1);
  const auto cell = view.cellForItemAtIndexPath({0, 0});
  cell->setHighlighted(true, false);
  show(1, 0);
  EXPECT_FALSE(cell->isHighlighted());
}

TEST_F(BasicCollectionViewTest, ForgottenCellsComeBackToTheirPlaces) {
  show(0, 3);
  const auto before = cells();
  source.asked.clear();
  view.forgetCells();
  EXPECT_THAT(cells(), IsEmpty());
  show(0, 3);
  EXPECT_THAT(source.asked, ElementsAre(0, 1, 2));
  EXPECT_EQ(cells(), before);
}

TEST_F(BasicCollectionViewTest, ForgettingInvalidatesTheLayout) {
  const int before = layout->invalidations;
  view.forgetCells();
  EXPECT_EQ(layout->invalidations, before + 1);
}

TEST_F(BasicCollectionViewTest, TellsCellsAndTheirPlacesApart) {
  view.registerDecorationView("line", [this] { return make(); });
  const auto placed = show(4, 1);
  ASSERT_THAT(placed, SizeIs(2));
  EXPECT_EQ(view.indexPathForCell(*placed[0].cell), (IndexPath{0, 4}));
  EXPECT_EQ(view.indexPathForCell(*placed[1].cell), std::nullopt) << "a decoration is no cell";
  EXPECT_EQ(view.indexPathForCell(Cell()), std::nullopt);
}

// --- Bounds ---

TEST_F(BasicCollectionViewTest, TheLayoutHearsOfBoundsBeforeTheyCount) {
  const CGRect first{{0, 0}, {100, 50}};
  view.takeBounds(first);
  view.takeBounds({{0, 20}, {100, 50}});
  EXPECT_EQ(layout->boundsWhenAsked, first);
  EXPECT_EQ(view.bounds(), (CGRect{{0, 20}, {100, 50}}));
}

TEST_F(BasicCollectionViewTest, BoundsInvalidateTheLayoutThatWantsIt) {
  view.takeBounds({{0, 0}, {100, 50}});
  const int before = layout->invalidations;
  view.takeBounds({{0, 20}, {100, 50}});
  EXPECT_EQ(layout->invalidations, before);
  view.takeBounds({{0, 20}, {100, 60}});
  EXPECT_EQ(layout->invalidations, before + 1);
}

// --- Selecting ---

TEST_F(BasicCollectionViewTest, SelectsTheLastOneAloneAndTellsTheSource) {
  show(0, 3);
  view.select({0, 1});
  view.select({0, 2});
  EXPECT_THAT(source.selected, ElementsAre(IndexPath{0, 1}, IndexPath{0, 2}));
  EXPECT_THAT(view.indexPathsForSelectedItems(), ElementsAre(IndexPath{0, 2}));
}

TEST_F(BasicCollectionViewTest, WhatHasNoCellCannotBeSelected) {
  show(0, 3);
  view.select({0, 3});
  EXPECT_THAT(source.selected, IsEmpty());
  EXPECT_THAT(view.indexPathsForSelectedItems(), IsEmpty());
}

TEST_F(BasicCollectionViewTest, ForgettingPutsTheSelectionAway) {
  show(0, 3);
  view.select({0, 1});
  view.forgetCells();
  EXPECT_THAT(view.indexPathsForSelectedItems(), IsEmpty());
}

// --- Its ends ---

TEST_F(BasicCollectionViewTest, WithoutASourceThereIsNothing) {
  view.source = nullptr;
  EXPECT_EQ(view.numberOfSections(), 0);
  EXPECT_EQ(view.numberOfItemsInSection(0), 0);
  EXPECT_THAT(show(0, 3), IsEmpty());
  view.select({0, 0});
  EXPECT_THAT(view.indexPathsForSelectedItems(), IsEmpty());
}

TEST_F(BasicCollectionViewTest, ASourceHasOneSectionUnlessItSaysOtherwise) {
  EXPECT_EQ(view.numberOfSections(), 1);
  EXPECT_EQ(view.numberOfItemsInSection(0), 20);
}

TEST_F(BasicCollectionViewTest, AnUnregisteredKindStops) {
  EXPECT_DEATH(static_cast<void>(view.dequeueReusableCell("other")),
               "fatal error: no cell is registered as \"other\"");
}

TEST_F(BasicCollectionViewTest, LeavesTheLayoutWhenItGoes) {
  {
    const View passing(layout);
    EXPECT_EQ(layout->collectionView(), &passing);
  }
  EXPECT_EQ(layout->collectionView(), nullptr);
}

}  // namespace
}  // namespace kindora
