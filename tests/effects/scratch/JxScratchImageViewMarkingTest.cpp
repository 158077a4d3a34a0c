// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Which cells points and strokes mark. Positions are in pixels of the bitmap, y up.
#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "effects/scratch/JxScratchImageView.h"
#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

// 6 x 4 cells of 100 pixels.
class JxScratchImageViewMarking : public ::testing::Test {
 protected:
  std::shared_ptr<JxScratchImageView> view_ = scratchView(cover(600, 400), 50);
};

TEST_F(JxScratchImageViewMarking, PointMarksTheCellItLiesIn) {
  view_->fillTileWithPoint({250, 150});
  EXPECT_EQ(markedCells(*view_), (Cells{{2, 1}}));
  EXPECT_EQ(view_->tilesFilled(), 1);
}

TEST_F(JxScratchImageViewMarking, PointOnABorderBelongsToTheNextCell) {
  view_->fillTileWithPoint({200, 99.999});
  EXPECT_EQ(markedCells(*view_), (Cells{{2, 0}}));
}

TEST_F(JxScratchImageViewMarking, PointIsClampedToTheLastPixel) {
  view_->fillTileWithPoint({599.9, 1e9});
  view_->fillTileWithPoint({-1, -1e9});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {5, 3}}));
}

TEST_F(JxScratchImageViewMarking, ClampLeavesOnePixelToTheEdge) {
  // With a cell of half a pixel the last cell cannot be reached: clamped to 1 of 2 pixels.
  const auto view = scratchView(cover(2, 2), 1);
  view->setMaskedMatrix(JxMatrix::initWithMaxX(4, 4));
  view->fillTileWithPoint({1.9, 1.9});
  EXPECT_EQ(markedCells(*view), (Cells{{2, 2}}));
}

TEST_F(JxScratchImageViewMarking, MultipliesBeforeItDivides) {
  // 15.0 / 22 * 22 is below 15, 15.0 * 22 / 22 is not.
  const auto view = scratchView(cover(22, 22), 1);
  view->setMaskedMatrix(JxMatrix::initWithMaxX(22, 22));
  view->fillTileWithPoint({15, 15});
  EXPECT_EQ(markedCells(*view), (Cells{{15, 15}}));
}

TEST_F(JxScratchImageViewMarking, CoverIsMeasuredInPoints) {
  const auto view = scratchView(cover(600, 400, 2), 50);
  view->fillTileWithPoint({250, 150});
  EXPECT_EQ(markedCells(*view), (Cells{{5, 3}}));
}

TEST_F(JxScratchImageViewMarking, MarkedCellIsNotCountedAgain) {
  view_->fillTileWithPoint({250, 150});
  view_->fillTileWithPoint({299, 199});
  EXPECT_EQ(view_->tilesFilled(), 1);
}

TEST_F(JxScratchImageViewMarking, CellOfAnyOtherValueIsLeftAlone) {
  view_->maskedMatrix()->setValue(-7, 2, 1);
  view_->fillTileWithPoint({250, 150});
  EXPECT_EQ(view_->tilesFilled(), 0);
  EXPECT_EQ(view_->maskedMatrix()->valueForCoordinates(2, 1), -7);
}

TEST_F(JxScratchImageViewMarking, AbsentGridCountsEveryMark) {
  view_->setMaskedMatrix(nullptr);
  view_->fillTileWithPoint({250, 150});
  view_->fillTileWithPoint({250, 150});
  EXPECT_EQ(view_->tilesFilled(), 2);
}

TEST_F(JxScratchImageViewMarking, NotANumberMarksColumnAndRowZero) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  view_->fillTileWithPoint({kNan, 150});
  view_->fillTileWithPoint({250, kNan});
  EXPECT_EQ(markedCells(*view_), (Cells{{2, 0}, {0, 1}}));
}

TEST_F(JxScratchImageViewMarking, WalkGoesDiagonallyWhateverTheSlope) {
  view_->fillTileWithTwoPoints({120, 40}, {400, 320});
  EXPECT_EQ(markedCells(*view_), (Cells{{1, 0}, {2, 1}, {3, 2}, {4, 3}}));
}

TEST_F(JxScratchImageViewMarking, WalkStopsAtTheLowerOfBothEnds) {
  view_->fillTileWithTwoPoints({50, 50}, {550, 150});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {1, 1}, {5, 1}}));
}

TEST_F(JxScratchImageViewMarking, WalkReachesAnEndThatItMeetsExactly) {
  view_->fillTileWithTwoPoints({50, 50}, {250, 380});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {1, 1}, {2, 2}, {2, 3}}));
}

TEST_F(JxScratchImageViewMarking, VerticalWalkDriftsLeft) {
  view_->fillTileWithTwoPoints({300, 100}, {300, 300});
  EXPECT_EQ(markedCells(*view_), (Cells{{3, 1}, {2, 2}, {1, 3}, {3, 3}}));
}

TEST_F(JxScratchImageViewMarking, HorizontalWalkDriftsDownAndIsClamped) {
  view_->fillTileWithTwoPoints({100, 200}, {500, 200});
  EXPECT_EQ(markedCells(*view_), (Cells{{3, 0}, {4, 0}, {5, 0}, {2, 1}, {1, 2}, {5, 2}}));
}

TEST_F(JxScratchImageViewMarking, BeginRightOfTheEndMarksOnlyTheEnd) {
  view_->fillTileWithTwoPoints({400, 100}, {200, 200});
  EXPECT_EQ(markedCells(*view_), (Cells{{2, 2}}));
}

TEST_F(JxScratchImageViewMarking, BeginAboveTheEndMarksOnlyTheEnd) {
  view_->fillTileWithTwoPoints({200, 300}, {400, 100});
  EXPECT_EQ(markedCells(*view_), (Cells{{4, 1}}));
}

TEST_F(JxScratchImageViewMarking, PointsOutsideAreClampedOnTheWay) {
  view_->fillTileWithTwoPoints({-150, -50}, {150, 450});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {0, 1}, {1, 2}, {1, 3}}));
}

TEST_F(JxScratchImageViewMarking, StepsAreMeasuredInPoints) {
  // 300 x 200 points: a step is 50 points wide and high, a cell 50 points.
  const auto view = scratchView(cover(600, 400, 2), 50);
  view->fillTileWithTwoPoints({60, 20}, {200, 160});
  EXPECT_EQ(markedCells(*view), (Cells{{1, 0}, {2, 1}, {3, 2}, {4, 3}}));
}

TEST_F(JxScratchImageViewMarking, IdenticalPointsMarkOnce) {
  view_->fillTileWithTwoPoints({250, 150}, {250, 150});
  EXPECT_EQ(markedCells(*view_), (Cells{{2, 1}}));
  EXPECT_EQ(view_->tilesFilled(), 1);
}

TEST_F(JxScratchImageViewMarking, IdenticalPointsMarkOnceWithoutAGridToo) {
  view_->setMaskedMatrix(nullptr);
  view_->fillTileWithTwoPoints({250, 150}, {250, 150});
  EXPECT_EQ(view_->tilesFilled(), 1);
}

TEST_F(JxScratchImageViewMarking, IdenticalPointsEndOnAGridWithoutCells) {
  const auto view = scratchView(cover(30, 30), 50);
  view->fillTileWithTwoPoints({15, 15}, {15, 15});
  EXPECT_EQ(view->tilesFilled(), 0);
}

TEST_F(JxScratchImageViewMarking, WithoutAnImageAStrokeCountsBothEnds) {
  view_->setImage(nullptr, 50);
  view_->fillTileWithTwoPoints({0, 0}, {0, 0});
  EXPECT_EQ(view_->tilesFilled(), 2);
}

TEST_F(JxScratchImageViewMarking, WalkFromInfinitelyFarEnds) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  view_->fillTileWithTwoPoints({-kInfinity, -kInfinity}, {350, 250});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {3, 2}}));
}

TEST_F(JxScratchImageViewMarking, WalkThatRoundingHoldsInPlaceEnds) {
  // At this distance a step of 100 is below half the spacing of doubles.
  view_->fillTileWithTwoPoints({-1e19, -1e19}, {350, 250});
  EXPECT_EQ(markedCells(*view_), (Cells{{0, 0}, {3, 2}}));
}

}  // namespace
}  // namespace kindora
