// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CollectionViewItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>
#include <vector>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

class Source final : public UICollectionViewDataSource {
 public:
  int count = 40;
  CollectionView* view = nullptr;
  std::vector<IndexPath> selected;

  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int /*section*/) override { return count; }
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath /*path*/) override {
    return view->dequeueReusableCell("cell");
  }
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override { selected.push_back(path); }
};

// 40 red items of 20 x 20 points, 10 apart, three a line, in a window of 100 x 100.
class CollectionViewItemTest : public QuickFixture {
 protected:
  CollectionViewItemTest() {
    layout.setItemSize({20, 20});
    source.view = &view;
    view.registerCell("cell", [] { return std::make_shared<UICollectionViewCell>(); });
    view.setDataSource(&source);
    delegate.setData(R"(import QtQuick
                        Rectangle {
                            property QtObject cell
                            color: "red"
                        })",
                     QUrl());
    // As QML does it: all properties first, completed at the end.
    item = std::make_unique<Completed>(window.contentItem());
    item->begin();
    item->setCollectionView(&view);
    item->setDelegate(&delegate);
    item->setVisibleSize({100, 100});
    item->complete();
    view.reloadData();
  }

  class Completed final : public CollectionViewItem {
   public:
    using CollectionViewItem::CollectionViewItem;
    void begin() { classBegin(); }
    void complete() { componentComplete(); }
  };

  // Shows the part of the content that begins there.
  void scroll(double y) {
    item->setContentY(y);
    item->setY(-y);
  }
  [[nodiscard]] std::vector<QQuickItem*> visibleItems() const {
    std::vector<QQuickItem*> items;
    for (QQuickItem* child : item->childItems()) {
      if (child->isVisible()) items.push_back(child);
    }
    return items;
  }

  Source source;
  BelSpringyCollectionViewFlowLayout layout;
  CollectionView view{layout};
  ManualTime time{std::make_shared<ManualQueue>()};
  QQmlEngine engine;
  QQmlComponent delegate{&engine};
  std::unique_ptr<Completed> item;
};

TEST_F(CollectionViewItemTest, DrawsCellsWhereTheyAre) {
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(20, 20), kRedPixel);
  EXPECT_EQ(image.pixelColor(50, 20), kRedPixel);
  EXPECT_EQ(image.pixelColor(80, 20), kRedPixel);
  EXPECT_EQ(image.pixelColor(20, 50), kRedPixel);
  EXPECT_EQ(image.pixelColor(35, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 35), QColor(Qt::white));
}

TEST_F(CollectionViewItemTest, IsAsLargeAsTheContent) {
  EXPECT_EQ(item->implicitWidth(), 100);
  EXPECT_EQ(item->implicitHeight(), 14 * 30 + 10);
}

TEST_F(CollectionViewItemTest, HasAnItemForEachCell) {
  EXPECT_EQ(visibleItems().size(), view.shownCells().size());
}

TEST_F(CollectionViewItemTest, GivesEachItemItsCell) {
  for (QQuickItem* child : visibleItems()) {
    const auto* cell = child->property("cell").value<UICollectionViewCell*>();
    EXPECT_NE(cell, nullptr);
  }
}

TEST_F(CollectionViewItemTest, ItemsAreUsedAgainWithTheirCells) {
  for (int y = 0; y <= 300; y += 10) {
    scroll(y);
    time.advance(0.016);
  }
  EXPECT_LE(item->childItems().size(), 36);
  EXPECT_EQ(visibleItems().size(), view.shownCells().size());
}

TEST_F(CollectionViewItemTest, DrawsCellsThatCameIn) {
  scroll(300);
  time.advance(5);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(20, 20), kRedPixel);
  EXPECT_EQ(image.pixelColor(80, 80), kRedPixel);
}

TEST_F(CollectionViewItemTest, MovesCellsUntilTheyRest) {
  item->setFinger({50, 20});
  scroll(30);
  item->setFinger({});
  EXPECT_FALSE(view.isResting());
  time.advance(0.1);
  EXPECT_FALSE(view.isResting());
  time.advance(5);
  EXPECT_TRUE(view.isResting());
  for (const auto& [path, place] : view.shownCells()) {
    EXPECT_EQ(place.frame.origin.y, 10 + 30.0 * (path.row / 3));
  }
}

TEST_F(CollectionViewItemTest, CellsAreDrawnWhereTheyLag) {
  item->setFinger({50, 1});
  scroll(30);
  const double lag = view.shownCells().at(IndexPath{0, 9}).frame.origin.y - 100;
  EXPECT_GT(lag, 0.5);
  bool found = false;
  for (const QQuickItem* child : visibleItems()) found = found || child->y() == 100 + lag;
  EXPECT_TRUE(found);
}

TEST_F(CollectionViewItemTest, NoAnimationRunsAtRest) {
  scroll(30);
  time.advance(5);
  int changes = 0;
  QObject::connect(&view, &CollectionView::changed, [&changes] { ++changes; });
  time.advance(1);
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(time.isAnimating());
}

TEST_F(CollectionViewItemTest, AnAnimationRunsWhileCellsMove) {
  scroll(30);
  time.advance(0.01);
  EXPECT_TRUE(time.isAnimating());
}

TEST_F(CollectionViewItemTest, WakesAgainAtTheNextScroll) {
  scroll(30);
  time.advance(5);
  scroll(60);
  EXPECT_FALSE(view.isResting());
  time.advance(5);
  EXPECT_TRUE(view.isResting());
}

TEST_F(CollectionViewItemTest, TellsTheCollectionWhereTheFingerIs) {
  item->setFinger({50, 20});
  EXPECT_EQ(view.panLocation(), (CGPoint{50, 20}));
  item->setFinger({});
  EXPECT_EQ(view.panLocation(), (CGPoint{0, 0}));
}

TEST_F(CollectionViewItemTest, TellsTheCollectionWhatIsVisible) {
  EXPECT_EQ(view.bounds(), (CGRect{{0, 0}, {100, 100}}));
  scroll(40);
  item->setVisibleSize({100, 60});
  EXPECT_EQ(view.bounds(), (CGRect{{0, 40}, {100, 60}}));
  EXPECT_EQ(view.frame().size, (CGSize{100, 60}));
}

TEST_F(CollectionViewItemTest, SelectsTheItemOfACell) {
  item->select(view.shownCells().at(IndexPath{0, 4}).cell.get());
  EXPECT_EQ(source.selected, (std::vector<IndexPath>{{0, 4}}));
}

TEST_F(CollectionViewItemTest, SelectsTheCellThatIsDrawnThereWhileItLags) {
  scroll(30);
  item->select(view.shownCells().at(IndexPath{0, 5}).cell.get());
  EXPECT_EQ(source.selected, (std::vector<IndexPath>{{0, 5}}));
}

TEST_F(CollectionViewItemTest, ACellThatIsNotShownIsNotSelected) {
  UICollectionViewCell stranger;
  item->select(&stranger);
  item->select(nullptr);
  EXPECT_TRUE(source.selected.empty());
}

TEST_F(CollectionViewItemTest, FewerItemsHideTheRest) {
  source.count = 1;
  view.reloadData();
  EXPECT_EQ(visibleItems().size(), 1u);
  EXPECT_EQ(pixel(20, 20), kRedPixel);
  EXPECT_EQ(pixel(50, 20), QColor(Qt::white));
  EXPECT_EQ(item->implicitHeight(), 40);
}

TEST_F(CollectionViewItemTest, FocusGoesFromItemToItemInOrder) {
  scroll(120);
  time.advance(5);
  scroll(0);
  time.advance(5);
  const auto items = visibleItems();
  for (std::size_t i = 1; i < items.size(); ++i) {
    const bool later = items[i]->y() > items[i - 1]->y() ||
                       (items[i]->y() == items[i - 1]->y() && items[i]->x() > items[i - 1]->x());
    EXPECT_TRUE(later) << i;
  }
}

TEST_F(CollectionViewItemTest, TheFingerGoesWithTheItem) {
  item->setFinger({50, 20});
  item.reset();
  EXPECT_EQ(view.panLocation(), (CGPoint{0, 0}));
  view.setContentOffset({0, 30});
}

TEST_F(CollectionViewItemTest, TheCollectionMayGoFirst) {
  BelSpringyCollectionViewFlowLayout otherLayout;
  auto other = std::make_unique<CollectionView>(otherLayout);
  item->setCollectionView(other.get());
  other.reset();
  scroll(30);
  item->setFinger({1, 1});
  item->select(nullptr);
  time.advance(0.1);
  EXPECT_EQ(item->collectionView(), nullptr);
}

TEST_F(CollectionViewItemTest, AnotherCollectionTakesThePlaceOfTheFirst) {
  BelSpringyCollectionViewFlowLayout otherLayout;
  CollectionView other(otherLayout);
  item->setCollectionView(&other);
  EXPECT_TRUE(visibleItems().empty());
  view.reloadData();
  EXPECT_TRUE(visibleItems().empty());
}

TEST_F(CollectionViewItemTest, ADelegateThatMakesNoItemStops) {
  QQmlComponent broken(&engine);
  broken.setData("import QtQuick\nQtObject { property QtObject cell }", QUrl());
  EXPECT_DEATH(item->setDelegate(&broken), "fatal error: the delegate makes no item");
}

}  // namespace
}  // namespace kindora
