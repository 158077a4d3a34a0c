// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/collection/UICollectionViewFlowLayout.h"
#include "toolkit/controllers/CollectionView.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Cells read aloud as "cell 0" and so on.
class Source final : public UICollectionViewDataSource {
 public:
  static constexpr int kCount = 30;
  CollectionView* view = nullptr;
  std::vector<int> selected;

  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int /*section*/) override { return kCount; }
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath path) override {
    auto cell = view->dequeueReusableCell("cell");
    cell->setObjectName(QStringLiteral("cell %1").arg(path.row));
    return cell;
  }
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override {
    selected.push_back(path.row);
  }
};

// Two cells of 150 x 100 points a line, 10 apart: 15 lines, of which not five are in sight.
template <typename Layout>
class GridFixture : public HostFixture {
 protected:
  GridFixture() {
    layout.setItemSize({150, 100});
    source.view = &view;
    view.registerCell("cell", [] { return std::make_shared<UICollectionViewCell>(); });
    view.setDataSource(&source);
    draw(R"(CollectionGrid {
              Accessible.name: "Cells"
              prototype: Component {
                CollectionCell {
                  spoken: cell?.objectName ?? ""
                }
              }
            })",
         {{QStringLiteral("collectionView"), QVariant::fromValue(&view)}});
    view.reloadData();
    time.settle();
  }
  ~GridFixture() override { host.reset(); }

  [[nodiscard]] QRectF cell(int index) {
    return place(spoken(QStringLiteral("cell %1").arg(index)));
  }
  [[nodiscard]] UICollectionViewCell& shown(int index) const {
    return *view.shownCells().at(IndexPath{0, index}).cell;
  }
  [[nodiscard]] double offset() const { return host->property("contentY").toDouble(); }

  Source source;
  Layout layout;
  CollectionView view{layout};
};

class CollectionGridTest : public GridFixture<UICollectionViewFlowLayout> {};
class SpringyGridTest : public GridFixture<BelSpringyCollectionViewFlowLayout> {};

TEST_F(CollectionGridTest, IsAListOfButtonsThatScrollsAsFarAsTheContent) {
  EXPECT_EQ(role(QStringLiteral("cell 0")), QAccessible::Button);
  EXPECT_EQ(cell(0), QRectF(0, 0, 150, 100));
  EXPECT_EQ(cell(1), QRectF(170, 0, 150, 100));
  EXPECT_EQ(cell(2), QRectF(0, 110, 150, 100));
  EXPECT_EQ(host->property("contentHeight").toDouble(), 15 * 110 - 10);
}

TEST_F(CollectionGridTest, APressSelectsAndShowsAsLongAsItLasts) {
  const QPoint at = cell(3).center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, at);
  EXPECT_TRUE(shown(3).isHighlighted());
  EXPECT_THAT(source.selected, IsEmpty());
  QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  EXPECT_FALSE(shown(3).isHighlighted());
  EXPECT_THAT(source.selected, ElementsAre(3));
}

TEST_F(CollectionGridTest, ReturnSelects) {
  spoken(QStringLiteral("cell 2"))->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);
  EXPECT_THAT(source.selected, ElementsAre(2));
}

TEST_F(CollectionGridTest, AnAssistiveToolSelects) {
  pressByTool(QStringLiteral("cell 2"));
  EXPECT_THAT(source.selected, ElementsAre(2));
}

TEST_F(CollectionGridTest, TellsWhereTheFingerIsWhileItIsDown) {
  const QPoint at = cell(3).center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, at);
  EXPECT_EQ(view.panLocation(),
            (CGPoint{static_cast<double>(at.x()), static_cast<double>(at.y())}));
  QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  EXPECT_EQ(view.panLocation(), (CGPoint{0, 0}));
}

TEST_F(CollectionGridTest, ADragScrollsAndSelectsNothing) {
  drag({160, 400}, {160, 200});
  EXPECT_GT(offset(), 100);
  EXPECT_EQ(view.bounds().origin.y, offset());
  EXPECT_THAT(source.selected, IsEmpty());
}

TEST_F(CollectionGridTest, AFingerScrollsAndSelectsNothing) {
  swipe({160, 400}, {160, 200});
  EXPECT_GT(offset(), 100);
  time.advance(2);
  EXPECT_THAT(source.selected, IsEmpty());
}

TEST_F(CollectionGridTest, ATapAndAnAssistiveToolSelect) {
  tap(cell(3).center().toPoint());
  act(QStringLiteral("cell 2"), QAccessibleActionInterface::pressAction());
  EXPECT_THAT(source.selected, ElementsAre(3, 2));
}

TEST_F(CollectionGridTest, TabGoesThroughAllCells) {
  for (int i = 0; i < Source::kCount; ++i) {
    press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), QStringLiteral("cell %1").arg(i));
    ASSERT_TRUE(QRectF(0, 0, kWidth, kHeight).contains(cell(i)));
  }
}

TEST_F(CollectionGridTest, KeysGoToTheCellThatLiesThere) {
  spoken(QStringLiteral("cell 0"))->forceActiveFocus(Qt::TabFocusReason);
  const auto goesTo = [this](Qt::Key key, int index) {
    press(key);
    EXPECT_EQ(focusName(), QStringLiteral("cell %1").arg(index));
    EXPECT_TRUE(QRectF(0, 0, kWidth, kHeight).contains(place(window.activeFocusItem())));
  };
  goesTo(Qt::Key_Left, 0);
  goesTo(Qt::Key_Right, 1);
  goesTo(Qt::Key_Right, 1);
  goesTo(Qt::Key_Down, 3);
  goesTo(Qt::Key_Left, 2);
  goesTo(Qt::Key_Up, 0);
  goesTo(Qt::Key_PageDown, 6);
  goesTo(Qt::Key_PageUp, 0);
  goesTo(Qt::Key_End, 29);
  goesTo(Qt::Key_Down, 29);
  goesTo(Qt::Key_Up, 27);
  goesTo(Qt::Key_Home, 0);
}

// Its cells would lag behind each scroll that brings the next of them into sight.
TEST_F(SpringyGridTest, TabGoesThroughAllCells) {
  for (int i = 0; i < Source::kCount; ++i) {
    press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), QStringLiteral("cell %1").arg(i));
    ASSERT_TRUE(QRectF(0, 0, kWidth, kHeight).contains(cell(i)));
  }
}

TEST_F(CollectionGridTest, AnAssistiveToolScrolls) {
  act(QStringLiteral("Cells"), QAccessibleActionInterface::scrollDownAction());
  EXPECT_NEAR(offset(), kHeight, 80);
  act(QStringLiteral("Cells"), QAccessibleActionInterface::scrollUpAction());
  EXPECT_EQ(offset(), 0);
}

TEST_F(CollectionGridTest, ACellThatGetsTheKeyboardComesIntoSight) {
  ASSERT_GT(cell(8).bottom(), kHeight);
  spoken(QStringLiteral("cell 8"))->forceActiveFocus(Qt::TabFocusReason);
  EXPECT_EQ(cell(8).bottom(), kHeight - 60);
  host->setProperty("contentY", 60);
  spoken(QStringLiteral("cell 0"))->forceActiveFocus(Qt::TabFocusReason);
  EXPECT_EQ(offset(), 0);
}

}  // namespace
}  // namespace kindora
