// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/BitmapContext.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <vector>

#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

BitmapContext coveredContext(std::size_t width, std::size_t height) {
  BitmapContext context({.width = width, .height = height, .bytesPerRow = width * 4},
                        ColorSpace::deviceRGB());
  context.drawImage(*cover(width, height),
                    {static_cast<double>(width), static_cast<double>(height)});
  context.setBlendMode(BlendMode::clear);
  return context;
}

TEST(BitmapContext, StartsTransparentInNormalMode) {
  const BitmapContext context({.width = 5, .height = 4, .bytesPerRow = 20},
                              ColorSpace::deviceRGB());
  EXPECT_EQ(context.blendMode(), BlendMode::normal);
  EXPECT_EQ(context.layout().bitsPerComponent, 8u);
  EXPECT_EQ(context.layout().alphaInfo, AlphaInfo::premultipliedLast);
  EXPECT_EQ(context.raster().pixels(), std::vector<Rgba8>(20));
}

TEST(BitmapContext, DrawsAnImageTheRightWayUp) {
  Raster picture = plainRaster(4, 4);
  picture.setPixel(1, 0, {1, 2, 3, 255});
  BitmapContext context({.width = 4, .height = 4, .bytesPerRow = 16}, ColorSpace::deviceRGB());
  context.drawImage(*UIImage::imageWithRaster(picture), {4, 4});
  EXPECT_EQ(context.raster().pixels(), picture.pixels());
}

TEST(BitmapContext, DiscIsPlacedFromTheLowerLeftCorner) {
  BitmapContext context = coveredContext(100, 80);
  context.fillDisc({20, 10}, 5);
  EXPECT_EQ(context.raster().pixel(20, 69), kClear);
  EXPECT_EQ(context.raster().pixel(20, 9), kCoverColor);
}

TEST(BitmapContext, StrokeIsAsWideAsTheLineWidthAndHasRoundCaps) {
  BitmapContext context = coveredContext(100, 80);
  context.setLineWidth(20);
  context.strokeRoundCappedLine({30, 40}, {60, 40});
  // Across the line: 10 pixels to either side.
  EXPECT_EQ(context.raster().pixel(45, 30), kClear);
  EXPECT_EQ(context.raster().pixel(45, 49), kClear);
  EXPECT_EQ(context.raster().pixel(45, 29), kCoverColor);
  EXPECT_EQ(context.raster().pixel(45, 50), kCoverColor);
  // Along it: half a line width beyond the ends, rounded.
  EXPECT_EQ(context.raster().pixel(68, 40), kClear);
  EXPECT_EQ(context.raster().pixel(71, 40), kCoverColor);
  EXPECT_EQ(context.raster().pixel(68, 33), kCoverColor);
}

TEST(BitmapContext, RasterTakenEarlierDoesNotChange) {
  BitmapContext context = coveredContext(100, 80);
  const Raster before = context.raster();
  context.fillDisc({50, 40}, 30);
  EXPECT_EQ(before.pixels(), std::vector<Rgba8>(8000, kCoverColor));
}

TEST(BitmapContext, WithoutPixelsDrawsNothing) {
  BitmapContext context({}, ColorSpace::deviceRGB());
  context.drawImage(*cover(4, 4), {0.5, 0.5});
  context.setBlendMode(BlendMode::clear);
  context.fillDisc({0, 0}, 5);
  EXPECT_TRUE(context.raster().isEmpty());
}

TEST(BitmapContextDeathTest, StopsOnShapesInNormalMode) {
  BitmapContext context({.width = 5, .height = 4, .bytesPerRow = 20}, ColorSpace::deviceRGB());
  EXPECT_DEATH(context.fillDisc({1, 1}, 1), "fatal error: shapes are drawn");
  EXPECT_DEATH(context.strokeRoundCappedLine({1, 1}, {2, 2}), "fatal error: shapes are drawn");
}

TEST(BitmapContextDeathTest, StopsOnImagesInClearMode) {
  BitmapContext context = coveredContext(4, 4);
  EXPECT_DEATH(context.drawImage(*cover(4, 4), {4, 4}), "fatal error: an image is drawn");
}

}  // namespace
}  // namespace kindora
