// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/grid/SpringyGridViewController.h"

#include "gallery/grid/ColorCell.h"
#include "tests/gallery/GalleryFixture.h"

namespace kindora {
namespace {

class SpringyGridViewControllerTest : public GalleryFixture {
 protected:
  void layOut(double width) {
    screen.collectionView->setFrame({{0, 0}, {width, 752}});
    screen.collectionView->layoutIfNeeded();
  }
  [[nodiscard]] CGRect frameOf(int row) const {
    return screen.collectionView->shownCells().at({0, row}).frame;
  }

  SpringyGridViewController& screen = open<SpringyGridViewController>(kGridRow);
};

TEST_F(SpringyGridViewControllerTest, HasAThousandCellsOfWhichFewAreMade) {
  layOut(390);
  EXPECT_EQ(screen.collectionView->numberOfItemsInSection(0), 1000);
  EXPECT_GT(screen.collectionView->contentSize().height, 250 * 80);
  EXPECT_LT(screen.collectionView->shownCells().size(), 100U);
}

TEST_F(SpringyGridViewControllerTest, CellsAreSquaresThatFillTheWidth) {
  for (const auto& [width, perRow] : {std::pair(320.0, 3), {390.0, 4}, {480.0, 5}}) {
    layOut(width);
    const CGRect last = frameOf(perRow - 1);
    EXPECT_EQ(last.size.width, last.size.height);
    EXPECT_EQ(last.origin.y, frameOf(0).origin.y) << width;
    EXPECT_NEAR(last.origin.x + last.size.width, width - 16, perRow) << width;
    EXPECT_GT(frameOf(perRow).origin.y, last.origin.y) << width;
  }
}

TEST_F(SpringyGridViewControllerTest, APressedCellIsNamed) {
  layOut(390);
  int told = 0;
  QObject::connect(&screen, &SpringyGridViewController::captionChanged, &screen, [&] { ++told; });
  screen.collectionView->select({0, 6});
  screen.collectionView->select({0, 6});
  EXPECT_EQ(screen.caption(), QStringLiteral("Cell 7 was pressed"));
  EXPECT_EQ(told, 1);
}

TEST_F(SpringyGridViewControllerTest, CellsBearTheirNumberAndNeighboursAnotherColour) {
  layOut(390);
  const auto cell = [&](int row) {
    return std::dynamic_pointer_cast<ColorCell>(
        screen.collectionView->shownCells().at({0, row}).cell);
  };
  EXPECT_EQ(cell(0)->numberLabel.lock()->text(), "1");
  EXPECT_NE(cell(0)->color(), cell(1)->color());
}

}  // namespace
}  // namespace kindora
