// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavActionsCollectionView.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

#include "toolkit/collection/UICollectionViewFlowLayout.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Rows of 100 x 50 points, each with a frame around it that lies below or above the cells.
class FramingLayout final : public UICollectionViewFlowLayout {
 public:
  FramingLayout() {
    setItemSize({100, 50});
    setMinimumLineSpacing(0);
  }
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> layoutAttributesForElementsInRect(
      const CGRect& rect) const override {
    auto elements = UICollectionViewFlowLayout::layoutAttributesForElementsInRect(rect);
    const auto cells = elements;
    for (const auto& cell : cells) {
      elements.push_back(std::make_shared<UICollectionViewLayoutAttributes>(
          cell->indexPath(), cell->frame(), "frame"));
      elements.back()->setZIndex(frameZIndex);
    }
    return elements;
  }
  int frameZIndex = -1;
};

struct Rows final : QavActionsCollectionViewDataSource {
  [[nodiscard]] int collectionViewNumberOfItemsInSection(int /*section*/) override { return count; }
  [[nodiscard]] std::shared_ptr<QavCollectionReusableView> collectionViewCellForItemAtIndexPath(
      IndexPath path) override {
    asked.push_back(path.row);
    return view->dequeueReusableCell("row");
  }
  QavActionsCollectionView* view = nullptr;
  int count = 0;
  std::vector<int> asked;
};

class QavActionsCollectionViewTest : public testing::Test {
 protected:
  QavActionsCollectionViewTest() {
    const auto make = [this] {
      ++made;
      return std::make_shared<QavCollectionReusableView>();
    };
    view->registerCell("row", make);
    view->registerDecorationView("frame", make);
    rows->view = view.get();
    view->setDataSource(rows);
    view->setFrame({{0, 0}, {100, 100}});
  }
  void show(int count) {
    rows->count = count;
    view->reloadData();
    view->layoutIfNeeded();
  }
  [[nodiscard]] std::vector<double> cellTops() const {
    std::vector<double> tops;
    for (int i = 0; i < rows->count; ++i) {
      if (const auto cell = view->cellForItemAtIndexPath({0, i})) {
        tops.push_back(cell->frame().origin.y);
      }
    }
    return tops;
  }

  int made = 0;
  const std::shared_ptr<FramingLayout> layout = std::make_shared<FramingLayout>();
  const std::shared_ptr<QavActionsCollectionView> view =
      std::make_shared<QavActionsCollectionView>(layout);
  const std::shared_ptr<Rows> rows = std::make_shared<Rows>();
};

TEST_F(QavActionsCollectionViewTest, PlacesACellForEachItem) {
  show(2);
  EXPECT_THAT(cellTops(), ElementsAre(0, 50));
  EXPECT_EQ(view->contentSize(), (CGSize{100, 100}));
}

TEST_F(QavActionsCollectionViewTest, ShowsNothingWithoutADataSource) {
  show(2);
  view->setDataSource({});
  view->layoutIfNeeded();
  EXPECT_THAT(view->subviews(), IsEmpty());
}

TEST_F(QavActionsCollectionViewTest, DrawsInTheOrderOfDepth) {
  show(1);
  const auto cell = view->cellForItemAtIndexPath({0, 0});
  ASSERT_EQ(view->subviews().size(), 2U);
  EXPECT_EQ(view->subviews().back(), cell);
  layout->frameZIndex = 1;
  view->setNeedsLayout();
  view->layoutIfNeeded();
  EXPECT_EQ(view->subviews().front(), cell);
}

TEST_F(QavActionsCollectionViewTest, TellsCellsAndTheirPlacesApart) {
  show(2);
  const auto cell = view->cellForItemAtIndexPath({0, 1});
  EXPECT_EQ(view->indexPathForCell(*cell), (IndexPath{0, 1}));
  EXPECT_EQ(view->indexPathForCell(static_cast<const UIView&>(*view)), std::nullopt);
  // What decorates a cell is none.
  EXPECT_EQ(view->indexPathForCell(*view->subviews().front()), std::nullopt);
  EXPECT_EQ(view->cellForItemAtIndexPath({0, 2}), nullptr);
}

TEST_F(QavActionsCollectionViewTest, HasCellsForWhatIsInSightAndOnePageAround) {
  show(100);
  EXPECT_THAT(cellTops(), ElementsAre(0, 50, 100, 150));
  view->setContentOffset({0, 1000});
  view->layoutIfNeeded();
  EXPECT_THAT(cellTops(), ElementsAre(900, 950, 1000, 1050, 1100, 1150));
}

TEST_F(QavActionsCollectionViewTest, UsesAgainWhatWasScrolledAway) {
  show(1000);
  view->setContentOffset({0, 1000});
  view->layoutIfNeeded();
  const int before = made;
  for (double y = 1000; y < 20000; y += 130) {
    view->setContentOffset({0, y});
    view->layoutIfNeeded();
  }
  // A page may begin between two rows, which makes room for one more.
  EXPECT_LE(made, before + 2);
}

TEST_F(QavActionsCollectionViewTest, AsksOnlyForWhatArrives) {
  show(100);
  rows->asked.clear();
  view->setContentOffset({0, 50});
  view->layoutIfNeeded();
  EXPECT_THAT(rows->asked, ElementsAre(4));
}

TEST_F(QavActionsCollectionViewTest, ReloadedPlacesGetTheirOwnCellsAgain) {
  show(3);
  const auto first = view->cellForItemAtIndexPath({0, 0});
  const auto last = view->cellForItemAtIndexPath({0, 2});
  rows->asked.clear();
  show(3);
  EXPECT_THAT(rows->asked, ElementsAre(0, 1, 2));
  EXPECT_EQ(view->cellForItemAtIndexPath({0, 0}), first);
  EXPECT_EQ(view->cellForItemAtIndexPath({0, 2}), last);
}

TEST_F(QavActionsCollectionViewTest, FewerItemsScrollBack) {
  show(100);
  view->setContentOffset({0, 4000});
  view->layoutIfNeeded();
  show(3);
  EXPECT_EQ(view->contentOffset().y, 50);
  EXPECT_THAT(cellTops(), ElementsAre(0, 50, 100));
}

TEST_F(QavActionsCollectionViewTest, RestsWhenNothingHasChanged) {
  show(3);
  int changes = 0;
  int passes = 0;
  const auto ofPasses = view->observeLayout([&] { ++passes; });
  const auto ofChanges = view->observe([&] { ++changes; });
  view->layoutIfNeeded();
  EXPECT_EQ(passes, 0);
  EXPECT_EQ(changes, 0);
}

TEST_F(QavActionsCollectionViewTest, LeavesTheLayoutWhenItGoes) {
  auto other = std::make_shared<QavActionsCollectionView>(layout);
  EXPECT_EQ(layout->collectionView(), other.get());
  other.reset();
  EXPECT_EQ(layout->collectionView(), nullptr);
}

}  // namespace
}  // namespace kindora
