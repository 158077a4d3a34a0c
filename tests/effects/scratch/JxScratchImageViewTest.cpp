// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Setting covers, and the state that this prepares.
#include "effects/scratch/JxScratchImageView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

static_assert(std::is_base_of_v<UIImageView, JxScratchImageView>);

TEST(JxScratchImageView, TakesNoTouchesBeforeItIsPrepared) {
  const auto view = scratchView({300, 200});
  EXPECT_FALSE(view->isUserInteractionEnabled());
  EXPECT_EQ(view->maskedMatrix(), nullptr);
  EXPECT_EQ(view->imageContext(), nullptr);
  EXPECT_EQ(view->colorSpace(), nullptr);
}

TEST(JxScratchImageView, TakesTouchesOnceACoverIsSet) {
  EXPECT_TRUE(scratchView(cover(300, 200), 50)->isUserInteractionEnabled());
}

TEST(JxScratchImageView, TakesTouchesWithoutACoverToo) {
  const auto view = scratchView({300, 200});
  view->setImage(nullptr, 50);
  EXPECT_TRUE(view->isUserInteractionEnabled());
}

TEST(JxScratchImageView, NoImageOnAFreshViewIsWhatItShows) {
  const auto view = scratchView({300, 200});
  view->setImage(nullptr);
  EXPECT_FALSE(view->isUserInteractionEnabled());
  EXPECT_EQ(view->radius(), 0u);
}

TEST(JxScratchImageView, ShowsTheCoverItWasGiven) {
  const UIImageRef image = cover(300, 200);
  const auto view = scratchView(image, 50);
  EXPECT_EQ(view->image(), image);
  EXPECT_EQ(view->radius(), 50u);
}

TEST(JxScratchImageView, HandsTheImageToTheBaseBeforeItPrepares) {
  const auto view = scratchView(cover(300, 200), 50);
  std::size_t radiusWhenShown = 0;
  std::size_t tilesWhenShown = 0;
  const auto subscription = view->observe([&] {
    radiusWhenShown = view->radius();
    tilesWhenShown = view->tilesX();
  });
  view->setImage(cover(600, 200), 10);
  EXPECT_EQ(radiusWhenShown, 50u);
  EXPECT_EQ(tilesWhenShown, 3u);
  EXPECT_EQ(view->radius(), 10u);
  EXPECT_EQ(view->tilesX(), 30u);
}

TEST(JxScratchImageView, GridHasOneCellABrushDiameter) {
  const auto view = scratchView(cover(600, 400, 2), 50);
  EXPECT_EQ(view->tilesX(), 6u);
  EXPECT_EQ(view->tilesY(), 4u);
  EXPECT_EQ(view->maskedMatrix()->max(), (JxMatrix::Max{6, 4}));
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_EQ(view->maskingProgress(), 0);
  EXPECT_TRUE(markedCells(*view).empty());
}

TEST(JxScratchImageView, GridSizeIsTruncatedFromRealPixels) {
  const auto view =
      scratchView(UIImage::imageWithRaster(plainRaster(600, 400), {599.9, 400}, 1), 50);
  EXPECT_EQ(view->tilesX(), 5u);
  EXPECT_EQ(view->tilesY(), 4u);
}

TEST(JxScratchImageView, GridCountsPixelsOfTheClaimedSize) {
  const auto view = scratchView(UIImage::imageWithRaster(plainRaster(10, 10), {150.5, 80}, 3), 15);
  EXPECT_EQ(view->tilesX(), 15u);
  EXPECT_EQ(view->tilesY(), 8u);
}

TEST(JxScratchImageView, RadiusZeroGivesNoCells) {
  const auto view = scratchView(cover(300, 200), 0);
  EXPECT_EQ(view->tilesX(), 0u);
  EXPECT_EQ(view->tilesY(), 0u);
  view->touchesBegan({began({150, 100})});
  view->touchesMoved({moved({150, 100}, {100, 120})});
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_EQ(view->image()->raster().pixels(), std::vector<Rgba8>(60000, kCoverColor));
}

TEST(JxScratchImageView, HugestRadiusGivesNoCells) {
  const auto view = scratchView(cover(300, 200), std::numeric_limits<std::size_t>::max());
  EXPECT_EQ(view->tilesX(), 0u);
  EXPECT_EQ(view->tilesY(), 0u);
  view->touchesBegan({began({150, 100})});
  EXPECT_EQ(view->image()->raster().pixels(), std::vector<Rgba8>(60000));
}

TEST(JxScratchImageView, BitmapHoldsTheWholeCoverTheRightWayUp) {
  Raster picture = plainRaster(70, 50);
  picture.setPixel(0, 0, {1, 2, 3, 255});
  picture.setPixel(69, 49, {4, 5, 6, 255});
  const auto view = scratchView(UIImage::imageWithRaster(picture, 2), 10);
  EXPECT_EQ(view->imageContext()->raster().pixels(), picture.pixels());
}

TEST(JxScratchImageView, BitmapHasTheLayoutOfTheCover) {
  const auto view =
      scratchView(UIImage::imageWithRaster(plainRaster(101, 51), {100.75, 50.5}, 1), 10);
  const BitmapContext& context = *view->imageContext();
  EXPECT_EQ(context.layout().width, 100u);
  EXPECT_EQ(context.layout().height, 50u);
  EXPECT_EQ(context.layout().bitsPerComponent, 8u);
  EXPECT_EQ(context.layout().bytesPerRow, 403u);
  EXPECT_EQ(context.layout().alphaInfo, AlphaInfo::premultipliedLast);
  EXPECT_EQ(static_cast<int>(context.layout().alphaInfo), 1);
  EXPECT_EQ(context.colorSpace(), view->colorSpace());
  EXPECT_EQ(context.raster().pixels(), std::vector<Rgba8>(5000, kCoverColor));
}

TEST(JxScratchImageView, BitmapIsInClearModeOncePrepared) {
  const auto view = scratchView(cover(300, 200), 50);
  EXPECT_EQ(view->imageContext()->blendMode(), BlendMode::clear);
  EXPECT_EQ(static_cast<int>(view->imageContext()->blendMode()), 16);
  view->touchesBegan({began({150, 100})});
  EXPECT_EQ(view->imageContext()->blendMode(), BlendMode::clear);
}

TEST(JxScratchImageView, ColourSpaceIsMadeOnceAndReused) {
  const auto view = scratchView(cover(300, 200), 50);
  const auto colorSpace = view->colorSpace();
  ASSERT_NE(colorSpace, nullptr);
  view->setImage(cover(100, 100), 10);
  EXPECT_EQ(view->colorSpace(), colorSpace);
}

TEST(JxScratchImageView, NoCoverDropsGridBitmapAndColourSpace) {
  const auto view = scratchView(cover(300, 200), 50);
  view->touchesBegan({began({150, 100})});
  const std::weak_ptr<const ColorSpace> colorSpace = view->colorSpace();
  const std::weak_ptr<JxMatrix> matrix = view->maskedMatrix();
  view->setImage(nullptr, 20);
  EXPECT_EQ(view->image(), nullptr);
  EXPECT_EQ(view->tilesX(), 0u);
  EXPECT_EQ(view->tilesY(), 0u);
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_EQ(view->radius(), 20u);
  EXPECT_EQ(view->maskedMatrix(), nullptr);
  EXPECT_EQ(view->imageContext(), nullptr);
  EXPECT_TRUE(colorSpace.expired());
  EXPECT_TRUE(matrix.expired());
}

TEST(JxScratchImageView, ACoverAfterNoneStartsAfresh) {
  const auto view = scratchView(cover(300, 200), 50);
  view->setImage(nullptr, 50);
  view->touchesBegan({began({10, 10})});
  view->setImage(cover(300, 200), 50);
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_EQ(view->tilesX(), 3u);
  EXPECT_NE(view->colorSpace(), nullptr);
  EXPECT_NE(view->imageContext(), nullptr);
}

TEST(JxScratchImageView, PlainSetterWithNoneDropsTheCoverWithRadiusThirty) {
  const auto view = scratchView(cover(300, 200), 50);
  view->setImage(nullptr);
  EXPECT_EQ(view->image(), nullptr);
  EXPECT_EQ(view->maskedMatrix(), nullptr);
  EXPECT_EQ(view->imageContext(), nullptr);
  EXPECT_EQ(view->radius(), 30u);
}

TEST(JxScratchImageView, PlainSetterWithTheShownImageDoesNothing) {
  const UIImageRef image = cover(300, 200);
  const auto view = scratchView(image, 50);
  const auto matrix = view->maskedMatrix();
  const BitmapContext* context = view->imageContext();
  view->fillTileWithPoint({250, 50});
  view->setImage(image);
  EXPECT_EQ(view->radius(), 50u);
  EXPECT_EQ(view->maskedMatrix(), matrix);
  EXPECT_EQ(view->imageContext(), context);
  EXPECT_EQ(view->tilesFilled(), 1);
}

TEST(JxScratchImageView, PlainSetterWithAnotherImageReturnsToRadiusThirty) {
  const auto view = scratchView(cover(300, 200), 50);
  view->touchesBegan({began({150, 100})});
  view->setImage(cover(300, 180));
  EXPECT_EQ(view->radius(), 30u);
  EXPECT_EQ(view->maskedMatrix()->max(), (JxMatrix::Max{5, 3}));
  EXPECT_EQ(view->tilesFilled(), 0);
}

TEST(JxScratchImageView, EqualPixelsInAnotherObjectAreAnotherImage) {
  const Raster raster = plainRaster(300, 200);
  const auto view = scratchView(UIImage::imageWithRaster(raster), 50);
  view->setImage(UIImage::imageWithRaster(raster));
  EXPECT_EQ(view->radius(), 30u);
}

TEST(JxScratchImageView, AfterAScratchTheCoverIsAnotherImage) {
  const UIImageRef image = cover(300, 200);
  const auto view = scratchView(image, 50);
  view->touchesBegan({began({150, 100})});
  view->setImage(image);
  EXPECT_EQ(view->radius(), 30u);
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_EQ(view->imageContext()->raster().pixels(), image->raster().pixels());
}

TEST(JxScratchImageView, AfterAScratchTheSnapshotIsTheShownImage) {
  const auto view = scratchView(cover(300, 200), 50);
  view->touchesBegan({began({150, 100})});
  view->setImage(view->image());
  EXPECT_EQ(view->radius(), 50u);
  EXPECT_EQ(view->tilesFilled(), 1);
}

TEST(JxScratchImageView, SetterWithRadiusStartsOverEvenWithTheShownImage) {
  const UIImageRef image = cover(300, 200);
  const auto view = scratchView(image, 50);
  view->fillTileWithPoint({250, 50});
  const auto matrix = view->maskedMatrix();
  view->setImage(image, 50);
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_NE(view->maskedMatrix(), matrix);
  EXPECT_TRUE(markedCells(*view).empty());
}

TEST(JxScratchImageView, SettingACoverReportsNothingAndKeepsTheDelegate) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(300, 200), 50);
  view->setDelegate(ear);
  view->touchesBegan({began({150, 100})});
  ASSERT_EQ(ear->heard.size(), 1u);
  view->setImage(cover(300, 200));
  view->setImage(nullptr);
  EXPECT_EQ(ear->heard.size(), 1u);
  EXPECT_EQ(view->delegate(), ear);
}

TEST(JxScratchImageView, HoldsItsDelegateWeakly) {
  auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(300, 200), 50);
  view->setDelegate(ear);
  EXPECT_EQ(view->delegate(), ear);
  EXPECT_EQ(ear.use_count(), 1);
  ear.reset();
  EXPECT_EQ(view->delegate(), nullptr);
  view->touchesBegan({began({150, 100})});
  EXPECT_EQ(view->tilesFilled(), 1);
}

TEST(JxScratchImageView, MatrixAccessorIsPlain) {
  const auto view = scratchView(cover(300, 200), 50);
  const auto matrix = JxMatrix::initWithMaxX(9, 9);
  view->setMaskedMatrix(matrix);
  EXPECT_EQ(view->maskedMatrix(), matrix);
  EXPECT_EQ(view->tilesX(), 3u);
  EXPECT_EQ(view->tilesFilled(), 0);
  view->setMaskedMatrix(nullptr);
  EXPECT_EQ(view->maskedMatrix(), nullptr);
}

TEST(JxScratchImageView, ProgressIsComputedFromTheMatrixOfTheMoment) {
  const auto view = scratchView(cover(300, 200), 50);
  view->fillTileWithPoint({10, 10});
  EXPECT_EQ(view->maskingProgress(), 1.0 / 6);
  view->setMaskedMatrix(JxMatrix::initWithMaxX(10, 10));
  EXPECT_EQ(view->maskingProgress(), 1.0 / 100);
}

TEST(JxScratchImageView, EachNewCellAddsItsShare) {
  const auto view = scratchView(cover(600, 400, 2), 50);
  view->touchesMoved({});  // from now on the view shows pixels
  int filled = 0;
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 6; ++x) {
      view->fillTileWithPoint({x * 100 + 50.0, y * 100 + 50.0});
      EXPECT_EQ(view->maskingProgress(), ++filled / 24.0);
    }
  }
}

TEST(JxScratchImageView, GridWithoutCellsHasNoProgress) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView(cover(99, 400), 50);
  view->setDelegate(ear);
  EXPECT_EQ(view->tilesX(), 0u);
  EXPECT_EQ(view->tilesY(), 4u);
  EXPECT_TRUE(std::isnan(view->maskingProgress()));
  view->touchesBegan({began({50, 50})});
  view->touchesMoved({moved({80, 50}, {20, 380}), moved({50, 50}, {50, 50})});
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_TRUE(std::isnan(view->maskingProgress()));
  EXPECT_TRUE(ear->heard.empty());
}

TEST(JxScratchImageView, CoverWithoutPixelsIsACoverOfNoCells) {
  const auto view = scratchView({300, 200});
  view->setImage(cover(0, 0), 50);
  EXPECT_NE(view->maskedMatrix(), nullptr);
  view->touchesBegan({began({50, 50})});
  view->touchesMoved({moved({50, 50}, {10, 10})});
  EXPECT_EQ(view->tilesFilled(), 0);
  EXPECT_TRUE(view->image()->raster().isEmpty());
}

TEST(JxScratchImageView, TeardownReleasesWhatItHolds) {
  auto view = scratchView(cover(300, 200), 50);
  const std::weak_ptr<const ColorSpace> colorSpace = view->colorSpace();
  const std::weak_ptr<JxMatrix> matrix = view->maskedMatrix();
  view.reset();
  EXPECT_TRUE(colorSpace.expired());
  EXPECT_TRUE(matrix.expired());
}

}  // namespace
}  // namespace kindora
