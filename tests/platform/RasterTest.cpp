// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/Raster.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace kindora {
namespace {

// Every pixel of its own colour.
std::vector<Rgba8> distinct(std::size_t width, std::size_t height) {
  std::vector<Rgba8> pixels;
  for (std::size_t i = 0; i < width * height; ++i) {
    pixels.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8),
                      static_cast<std::uint8_t>(i >> 16), 255});
  }
  return pixels;
}

TEST(Raster, StartsTransparent) {
  const Raster raster(100, 70);
  EXPECT_EQ(raster.width(), 100u);
  EXPECT_EQ(raster.height(), 70u);
  EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(7000));
}

TEST(Raster, WithoutWidthOrHeightIsEmpty) {
  EXPECT_TRUE(Raster().isEmpty());
  EXPECT_TRUE(Raster(0, 5).isEmpty());
  EXPECT_TRUE(Raster(5, 0).isEmpty());
  EXPECT_TRUE(Raster(0, 5).pixels().empty());
  EXPECT_FALSE(Raster(1, 1).isEmpty());
}

TEST(Raster, KeepsPixelsOfSizesThatAreNoMultipleOfATile) {
  for (const std::size_t width : {1u, 63u, 64u, 65u, 130u}) {
    for (const std::size_t height : {1u, 63u, 64u, 65u, 130u}) {
      const std::vector<Rgba8> pixels = distinct(width, height);
      const Raster raster(width, height, pixels);
      EXPECT_EQ(raster.pixels(), pixels) << width << " x " << height;
      EXPECT_EQ(raster.pixel(width - 1, height - 1), pixels.back()) << width << " x " << height;
    }
  }
}

TEST(Raster, PutsPixelsWhereTheTileSaysTheyAre) {
  const std::vector<Rgba8> pixels = distinct(200, 100);
  const Raster raster(200, 100, pixels);
  const std::size_t x = Raster::kTileSide + 3;
  const std::size_t y = Raster::kTileSide + 5;
  EXPECT_EQ(raster.tile(1, 1)[5 * Raster::kTileSide + 3], pixels[y * 200 + x]);
  EXPECT_EQ(raster.tileColumns(), (200 + Raster::kTileSide - 1) / Raster::kTileSide);
  EXPECT_EQ(raster.tileRows(), (100 + Raster::kTileSide - 1) / Raster::kTileSide);
}

TEST(Raster, LeavesTilesTransparentOutsideThePicture) {
  const std::vector<Rgba8> pixels = distinct(3, 2);
  const Raster raster(3, 2, pixels);
  EXPECT_EQ(raster.tile(0, 0)[3], Rgba8{});
  EXPECT_EQ(raster.tile(0, 0)[2 * Raster::kTileSide], Rgba8{});
}

TEST(Raster, SetsOnePixel) {
  Raster raster(130, 130);
  raster.setPixel(129, 70, {1, 2, 3, 4});
  EXPECT_EQ(raster.pixel(129, 70), (Rgba8{1, 2, 3, 4}));
  raster.setPixel(129, 70, {});
  EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(16900));
}

TEST(Raster, CopiesShareEveryTile) {
  const std::vector<Raster> rasters(2, Raster(200, 100, distinct(200, 100)));
  const Raster& raster = rasters[0];
  const Raster& copy = rasters[1];
  for (std::size_t row = 0; row < raster.tileRows(); ++row) {
    for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
      EXPECT_TRUE(raster.sharesTile(copy, column, row));
    }
  }
}

TEST(Raster, WritingPartsOnlyTheWrittenTileFromACopy) {
  Raster raster(200, 100, distinct(200, 100));
  const Raster copy = raster;
  raster.setPixel(70, 3, {9, 9, 9, 9});
  for (std::size_t row = 0; row < raster.tileRows(); ++row) {
    for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
      const bool written = column == 70 / Raster::kTileSide && row == 3 / Raster::kTileSide;
      EXPECT_EQ(raster.sharesTile(copy, column, row), !written) << column << ", " << row;
    }
  }
}

TEST(Raster, CopiesNeverChangeWithTheOriginal) {
  const std::vector<Rgba8> pixels = distinct(100, 100);
  Raster raster(100, 100, pixels);
  const Raster copy = raster;
  for (std::size_t i = 0; i < 100; ++i) raster.setPixel(i, i, {});
  EXPECT_EQ(copy.pixels(), pixels);
}

TEST(Raster, WritesInPlaceOnceTheCopyIsGone) {
  Raster raster(64, 64, distinct(64, 64));
  const Raster::Tile* before = &raster.tile(0, 0);
  std::optional<Raster> copy = raster;
  copy.reset();
  raster.setPixel(1, 1, {});
  EXPECT_EQ(&raster.tile(0, 0), before);
}

TEST(Raster, RastersOfDifferentSizesShareNothing) {
  const Raster raster(64, 64);
  EXPECT_FALSE(raster.sharesTile(Raster(64, 63), 0, 0));
}

TEST(Raster, TheSquareIsCutWhereItLay) {
  Raster raster(80, 40);
  raster.setPixel(40, 0, {1, 2, 3, 255});
  const Raster cut = croppedRaster(raster, {{40, 0}, {40, 40}});
  EXPECT_EQ(cut.width(), 40U);
  EXPECT_EQ(cut.pixel(0, 0), (Rgba8{1, 2, 3, 255}));
  EXPECT_EQ(cut.pixel(1, 0), Rgba8{});
}

TEST(RasterDeathTest, StopsWhenThereAreTooFewPixels) {
  const std::vector<Rgba8> pixels(11);
  EXPECT_DEATH(Raster(4, 3, pixels), "fatal error: too few pixels for the raster");
}

}  // namespace
}  // namespace kindora
