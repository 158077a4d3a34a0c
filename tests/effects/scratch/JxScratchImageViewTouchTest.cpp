// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What touches erase, mark, report and show.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "effects/scratch/JxScratchImageView.h"
#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

TEST(JxScratchImageViewTouch, BeganErasesADiscUnderTheFinger) {
  const auto view = scratchView(cover(300, 200), 50);
  view->touchesBegan({began({150, 60})});
  const Raster& shown = view->image()->raster();
  EXPECT_EQ(shown.pixel(150, 60), kClear);
  EXPECT_EQ(shown.pixel(150, 11), kClear);
  EXPECT_EQ(shown.pixel(150, 9), kCoverColor);
  EXPECT_EQ(shown.pixel(198, 60), kClear);
  EXPECT_EQ(shown.pixel(201, 60), kCoverColor);
  EXPECT_EQ(shown.pixel(150, 140), kCoverColor);
}

TEST(JxScratchImageViewTouch, MovedErasesARoundCappedLine) {
  const auto view = scratchView(cover(300, 200), 20);
  view->touchesMoved({moved({100, 100}, {200, 100})});
  const Raster& shown = view->image()->raster();
  EXPECT_EQ(shown.pixel(150, 81), kClear);
  EXPECT_EQ(shown.pixel(150, 118), kClear);
  EXPECT_EQ(shown.pixel(150, 79), kCoverColor);
  EXPECT_EQ(shown.pixel(150, 121), kCoverColor);
  EXPECT_EQ(shown.pixel(82, 100), kClear);
  EXPECT_EQ(shown.pixel(218, 100), kClear);
  EXPECT_EQ(shown.pixel(78, 100), kCoverColor);
  EXPECT_EQ(shown.pixel(82, 84), kCoverColor);
}

TEST(JxScratchImageViewTouch, PointsAreStretchedFromTheViewToTheBitmap) {
  const auto view = scratchView({100, 400});
  view->setImage(cover(600, 200, 2), 20);
  view->touchesBegan({began({75, 100})});
  const Raster& shown = view->image()->raster();
  EXPECT_EQ(shown.pixel(450, 50), kClear);
  EXPECT_EQ(shown.pixel(450, 31), kClear);
  EXPECT_EQ(shown.pixel(450, 150), kCoverColor);
  EXPECT_EQ(shown.pixel(75, 100), kCoverColor);
}

TEST(JxScratchImageViewTouch, PlaceOfTheViewInItsSuperviewDoesNotMatter) {
  const auto view = scratchView(cover(300, 200), 20);
  view->setFrame({{500, -300}, {300, 200}});
  view->touchesBegan({began({150, 60})});
  EXPECT_EQ(view->image()->raster().pixel(150, 60), kClear);
}

TEST(JxScratchImageViewTouch, BeganMarksTheCellUnderTheDiscsLowerLeftCorner) {
  const auto view = scratchView(cover(600, 400), 50);
  view->touchesBegan({began({320, 130})});
  // From the bottom the finger is at 270; the corner at (270, 220).
  EXPECT_EQ(markedCells(*view), (Cells{{2, 2}}));
}

TEST(JxScratchImageViewTouch, LowerLeftCornerOfTheBitmapMarksTheFirstCell) {
  const auto view = scratchView(cover(600, 400), 50);
  view->touchesBegan({began({0, 400})});
  EXPECT_EQ(markedCells(*view), (Cells{{0, 0}}));
}

TEST(JxScratchImageViewTouch, FirstTouchOnAFineCoverComparesPixelsWithPoints) {
  const auto view = scratchView(cover(600, 400, 2), 50);
  view->touchesBegan({began({150, 100})});
  EXPECT_EQ(markedCells(*view), (Cells{{5, 3}}));
  view->touchesBegan({began({150, 100})});
  EXPECT_EQ(markedCells(*view), (Cells{{2, 1}, {5, 3}}));
}

TEST(JxScratchImageViewTouch, MovedMarksFromTheCurrentPointToThePrevious) {
  const auto view = scratchView(cover(600, 400), 50);
  // Left and down on the screen: from (450, 50) to (50, 350), y down.
  view->touchesMoved({moved({450, 50}, {50, 350})});
  EXPECT_EQ(markedCells(*view), (Cells{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 3}}));
}

TEST(JxScratchImageViewTouch, StrokeToTheRightMarksOnlyThePreviousCell) {
  const auto view = scratchView(cover(600, 400), 50);
  view->touchesMoved({moved({150, 250}, {450, 350})});
  EXPECT_EQ(markedCells(*view), (Cells{{1, 1}}));
  // The cell of the current point comes with the next event.
  view->touchesMoved({moved({450, 350}, {460, 350})});
  EXPECT_EQ(markedCells(*view), (Cells{{4, 0}, {1, 1}}));
}

TEST(JxScratchImageViewTouch, StrokeUpwardsMarksOnlyThePreviousCell) {
  const auto view = scratchView(cover(600, 400), 50);
  view->touchesMoved({moved({450, 350}, {150, 50})});
  EXPECT_EQ(markedCells(*view), (Cells{{4, 0}}));
}

TEST(JxScratchImageViewTouch, OtherPhasesDoNothing) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(300, 200), 50);
  view->setDelegate(ear);
  for (const UITouchPhase phase :
       {UITouchPhase::stationary, UITouchPhase::ended, UITouchPhase::cancelled}) {
    view->touchesMoved({{phase, {150, 100}, {10, 10}}});
  }
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_TRUE(ear->heard.empty());
  EXPECT_EQ(view->image()->raster().pixels(), std::vector<Rgba8>(60000, kCoverColor));
}

TEST(JxScratchImageViewTouch, PhaseDecidesWhateverTheOperation) {
  const auto view = scratchView(cover(300, 200), 10);
  view->touchesBegan({moved({50, 50}, {250, 50})});
  EXPECT_EQ(view->image()->raster().pixel(150, 50), kClear);
}

TEST(JxScratchImageViewTouch, EveryTouchOfASetCounts) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(600, 400), 50);
  view->setDelegate(ear);
  view->touchesBegan({began({100, 350}),
                      {UITouchPhase::stationary, {300, 200}, {300, 200}},
                      moved({550, 50}, {590, 10})});
  EXPECT_EQ(markedCells(*view), (Cells{{0, 0}, {5, 3}}));
  const Raster& shown = view->image()->raster();
  EXPECT_EQ(shown.pixel(100, 350), kClear);
  EXPECT_EQ(shown.pixel(550, 50), kClear);
  EXPECT_EQ(shown.pixel(300, 200), kCoverColor);
  EXPECT_EQ(ear->heard, std::vector<double>{2.0 / 24});
}

TEST(JxScratchImageViewTouch, ReportCarriesViewAndProgress) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(600, 400), 50);
  view->setDelegate(ear);
  view->touchesBegan({began({100, 350})});
  view->touchesBegan({began({300, 350})});
  EXPECT_EQ(ear->heard, (std::vector<double>{1.0 / 24, 2.0 / 24}));
  EXPECT_EQ(ear->from, view.get());
}

TEST(JxScratchImageViewTouch, MarkedCellsAreNotReportedAgain) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(600, 400), 50);
  view->setDelegate(ear);
  view->touchesBegan({began({100, 350})});
  view->touchesBegan({began({120, 340})});
  view->touchesMoved({moved({60, 360}, {90, 340})});
  EXPECT_EQ(ear->heard.size(), 1u);
}

TEST(JxScratchImageViewTouch, ReportComesBeforeTheSnapshotIsShown) {
  const auto ear = std::make_shared<Ear>();
  const UIImageRef image = cover(600, 400);
  const auto view = scratchView(image, 50);
  view->setDelegate(ear);
  UIImageRef shownWhenTold;
  Rgba8 erasedWhenTold = kCoverColor;
  ear->whenTold = [&] {
    shownWhenTold = view->image();
    erasedWhenTold = view->imageContext()->raster().pixel(100, 350);
  };
  view->touchesBegan({began({100, 350})});
  EXPECT_EQ(shownWhenTold, image);
  EXPECT_EQ(erasedWhenTold, kClear);
  EXPECT_NE(view->image(), image);
}

TEST(JxScratchImageViewTouch, SnapshotKeepsRadiusGridAndBitmap) {
  const auto view = scratchView(cover(600, 400), 50);
  const auto matrix = view->maskedMatrix();
  const BitmapContext* context = view->imageContext();
  view->touchesBegan({began({100, 350})});
  view->touchesMoved({moved({100, 350}, {140, 340})});
  EXPECT_EQ(view->radius(), 50u);
  EXPECT_EQ(view->maskedMatrix(), matrix);
  EXPECT_EQ(view->imageContext(), context);
  EXPECT_EQ(markedCells(*view), (Cells{{0, 0}, {1, 0}}));
}

TEST(JxScratchImageViewTouch, AddingTouchesReturnsTheSnapshotWithoutShowingIt) {
  const UIImageRef image = cover(600, 400);
  const auto view = scratchView(image, 50);
  const UIImageRef snapshot = view->addTouches({began({100, 350})});
  EXPECT_EQ(view->image(), image);
  ASSERT_NE(snapshot, nullptr);
  EXPECT_EQ(snapshot->raster().pixel(100, 350), kClear);
}

TEST(JxScratchImageViewTouch, SnapshotHasScaleOneAndTheBitmapsSize) {
  const auto view = scratchView(cover(600, 400, 2), 50);
  view->touchesBegan({began({100, 150})});
  EXPECT_EQ(view->image()->scale(), 1);
  EXPECT_EQ(view->image()->size(), (CGSize{600, 400}));
}

TEST(JxScratchImageViewTouch, EverySetGivesANewImageObject) {
  const auto view = scratchView(cover(600, 400), 50);
  const UIImageRef first = view->addTouches({});
  const UIImageRef second = view->addTouches({});
  EXPECT_NE(first, second);
  EXPECT_EQ(first->raster().pixels(), second->raster().pixels());
}

TEST(JxScratchImageViewTouch, EarlierSnapshotsDoNotChange) {
  const auto view = scratchView(cover(300, 200), 30);
  const UIImageRef first = view->addTouches({began({60, 60})});
  const std::vector<Rgba8> pixels = first->raster().pixels();
  (void)view->addTouches({moved({60, 60}, {250, 150})});
  EXPECT_EQ(first->raster().pixels(), pixels);
}

TEST(JxScratchImageViewTouch, SnapshotsShareWhatAStrokeLeavesAlone) {
  const auto view = scratchView(cover(1200, 1200), 30);
  const UIImageRef first = view->addTouches({});
  const UIImageRef second = view->addTouches({moved({100, 100}, {130, 110})});
  const Raster& before = first->raster();
  const Raster& after = second->raster();
  std::size_t changed = 0;
  for (std::size_t row = 0; row < after.tileRows(); ++row) {
    for (std::size_t column = 0; column < after.tileColumns(); ++column) {
      if (!after.sharesTile(before, column, row)) ++changed;
    }
  }
  const std::size_t side = Raster::kTileSide;
  const std::size_t columns = 160 / side - 70 / side + 1;
  const std::size_t rows = 140 / side - 70 / side + 1;
  EXPECT_GE(changed, 1u);
  EXPECT_LE(changed, columns * rows);
}

TEST(JxScratchImageViewTouch, SnapshotsAreLetGo) {
  const auto view = scratchView(cover(300, 200), 30);
  std::weak_ptr<const UIImage> last;
  for (int i = 0; i < 100; ++i) {
    view->touchesMoved({moved({i * 3.0, 50}, {i * 3.0 + 3, 150})});
    EXPECT_TRUE(last.expired());
    last = view->image();
  }
}

TEST(JxScratchImageViewTouch, ColoursAndLineFollowTheTouch) {
  const auto view = scratchView(cover(300, 200), 30);
  view->touchesBegan({began({60, 60})});
  EXPECT_EQ(view->imageContext()->fillColor(), UIColor::clearColor());
  EXPECT_EQ(view->imageContext()->strokeColor(), (UIColor{0, 0, 0, 0}));
  view->touchesMoved({moved({60, 60}, {70, 70})});
  EXPECT_EQ(view->imageContext()->strokeColor(), UIColor::yellowColor());
  EXPECT_EQ(view->imageContext()->lineWidth(), 60);
  view->touchesBegan({began({60, 60})});
  EXPECT_EQ(view->imageContext()->strokeColor(), (UIColor{0, 0, 0, 0}));
}

TEST(JxScratchImageViewTouch, WithoutACoverBeganCountsOneAndMovedTwo) {
  const auto view = scratchView({300, 200});
  view->setImage(nullptr, 50);
  EXPECT_TRUE(std::isnan(view->maskingProgress()));
  view->touchesBegan({began({10, 10})});
  EXPECT_EQ(view->tilesFilled(), 1);
  view->touchesMoved({moved({10, 10}, {20, 5})});
  EXPECT_EQ(view->tilesFilled(), 3);
  view->touchesMoved({moved({20, 5}, {20, 5})});
  EXPECT_EQ(view->tilesFilled(), 5);
  view->touchesBegan({began({10, 10})});
  EXPECT_EQ(view->tilesFilled(), 6);
}

TEST(JxScratchImageViewTouch, WithoutACoverEveryTouchReportsInfinity) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView({300, 200});
  view->setImage(nullptr, 50);
  view->setDelegate(ear);
  view->touchesBegan({began({10, 10})});
  view->touchesMoved({moved({10, 10}, {20, 5})});
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ear->heard, (std::vector<double>{kInfinity, kInfinity}));
  EXPECT_EQ(view->maskingProgress(), kInfinity);
}

TEST(JxScratchImageViewTouch, WithoutACoverNothingIsShown) {
  const auto view = scratchView({300, 200});
  view->setImage(nullptr, 50);
  EXPECT_EQ(view->addTouches({began({10, 10})}), nullptr);
  view->touchesBegan({began({10, 10})});
  EXPECT_EQ(view->image(), nullptr);
}

TEST(JxScratchImageViewTouch, ViewNeverGivenACoverCountsLikeOneWithout) {
  const auto view = scratchView({300, 200});
  view->touchesBegan({began({10, 10})});
  EXPECT_EQ(view->tilesFilled(), 1);
}

TEST(JxScratchImageViewTouch, ViewWithoutASizeErasesNothing) {
  for (const CGSize size : {CGSize{0, 200}, CGSize{300, 0}, CGSize{0, 0}}) {
    const auto view = scratchView(size);
    view->setImage(cover(300, 200), 50);
    for (const double x : {-5.0, 0.0, 5.0}) {
      for (const double y : {-5.0, 0.0, 5.0}) {
        view->touchesBegan({began({x, y})});
        view->touchesMoved({moved({0, 0}, {x, y})});
        view->touchesMoved({moved({x, y}, {0, 3})});
      }
    }
    EXPECT_EQ(view->image()->raster().pixels(), std::vector<Rgba8>(60000, kCoverColor));
    EXPECT_EQ(markedCells(*view).size(), static_cast<std::size_t>(view->tilesFilled()));
  }
}

TEST(JxScratchImageViewTouch, NotANumberMarksTheFirstCell) {
  const auto view = scratchView({0, 0});
  view->setImage(cover(600, 400), 50);
  view->touchesBegan({began({0, 0})});
  EXPECT_EQ(markedCells(*view), (Cells{{0, 0}}));
}

}  // namespace
}  // namespace kindora
