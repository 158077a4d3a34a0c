// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/Eraser.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <vector>

#include "effects/scratch/Capsule.h"
#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

constexpr Rgba8 kWhite{255, 255, 255, 255};

// The area that a straight edge leaves of a square of side 1. The edge runs at the distance
// `inside` from the square's centre, which is negative when the centre is cut off, and has the
// normal (nx, ny).
double areaInside(double inside, double nx, double ny) {
  const double steep = std::max(std::abs(nx), std::abs(ny));
  const double flat = std::min(std::abs(nx), std::abs(ny));
  const double reach = (steep + flat) / 2;
  if (std::abs(inside) >= reach) return inside > 0 ? 1 : 0;
  if (std::abs(inside) <= (steep - flat) / 2) return 0.5 + inside / steep;
  const double corner = std::pow(reach - std::abs(inside), 2) / (2 * steep * flat);
  return inside > 0 ? 1 - corner : corner;
}

// How much of a square around a point the capsule covers, its outline being taken as straight
// there.
double coverage(const Capsule& capsule, double x, double y, double side) {
  const double dx = capsule.to.x - capsule.from.x;
  const double dy = capsule.to.y - capsule.from.y;
  const double length = dx * dx + dy * dy;
  double along = 0;
  if (length > 0) {
    along = std::clamp(((x - capsule.from.x) * dx + (y - capsule.from.y) * dy) / length, 0.0, 1.0);
  }
  const double nx = x - capsule.from.x - along * dx;
  const double ny = y - capsule.from.y - along * dy;
  const double distance = std::hypot(nx, ny);
  if (distance == 0) return 1;
  return areaInside((capsule.radius - distance) / side, nx / distance, ny / distance);
}

// The alpha that erasing leaves of an opaque pixel, from 16 x 16 parts of it.
double referenceAlpha(const Capsule& capsule, std::size_t column, std::size_t row) {
  constexpr int kParts = 16;
  const auto x = static_cast<double>(column);
  const auto y = static_cast<double>(row);
  // Far from the outline all parts are alike.
  const Capsule wider{capsule.from, capsule.to, capsule.radius + 2};
  if (coverage(wider, x + 0.5, y + 0.5, 1) == 0) return 255;
  const Capsule narrower{capsule.from, capsule.to, capsule.radius - 2};
  if (narrower.radius > 0 && coverage(narrower, x + 0.5, y + 0.5, 1) == 1) return 0;
  double sum = 0;
  for (int j = 0; j < kParts; ++j) {
    for (int i = 0; i < kParts; ++i) {
      sum += coverage(capsule, x + (i + 0.5) / kParts, y + (j + 0.5) / kParts, 1.0 / kParts);
    }
  }
  return 255 * (1 - sum / (kParts * kParts));
}

// The largest difference from the reference, in 255ths.
double worstDifference(const Capsule& capsule, std::size_t width, std::size_t height) {
  Raster raster = plainRaster(width, height, kWhite);
  eraseSegment(raster, capsule.from, capsule.to, capsule.radius);
  double worst = 0;
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      worst = std::max(worst, std::abs(raster.pixel(x, y).alpha - referenceAlpha(capsule, x, y)));
    }
  }
  return worst;
}

class EraserAccuracy : public ::testing::TestWithParam<double> {
 protected:
  [[nodiscard]] double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  // A point whose disc mostly reaches the raster, inside it or not.
  [[nodiscard]] CGPoint anyPoint(double width, double height) {
    const double outside = std::min(GetParam(), 40.0);
    return {between(-outside, width + outside), between(-outside, height + outside)};
  }

 private:
  std::mt19937 random_{5};
};

TEST_P(EraserAccuracy, DiscIsWithinTwoStepsOfTheSupersampledReference) {
  for (int i = 0; i < 10; ++i) {
    const CGPoint centre = anyPoint(140, 100);
    EXPECT_LE(worstDifference({centre, centre, GetParam()}, 140, 100), 2)
        << centre.x << ", " << centre.y;
  }
}

TEST_P(EraserAccuracy, SegmentIsWithinTwoStepsOfTheSupersampledReference) {
  for (int i = 0; i < 20; ++i) {
    const CGPoint from = anyPoint(140, 100);
    const CGPoint to = anyPoint(140, 100);
    EXPECT_LE(worstDifference({from, to, GetParam()}, 140, 100), 2)
        << from.x << ", " << from.y << " to " << to.x << ", " << to.y;
  }
}

TEST_P(EraserAccuracy, StraightAndDiagonalSegmentsAreToo) {
  const CGPoint from{std::floor(between(40, 90)), std::floor(between(30, 60))};
  for (const int dx : {-20, 0, 20}) {
    for (const int dy : {-20, 0, 20}) {
      EXPECT_LE(worstDifference({from, {from.x + dx, from.y + dy}, GetParam()}, 140, 100), 2)
          << dx << ", " << dy;
    }
  }
}

TEST_P(EraserAccuracy, OutlineThroughThePictureFromFarOutside) {
  const double radius = GetParam();
  for (int i = 0; i < 5; ++i) {
    const double angle = between(0, 6.28);
    const double distance = radius + between(-30, 30);
    const CGPoint from{70 + distance * std::cos(angle), 50 + distance * std::sin(angle)};
    const CGPoint to{from.x + between(-15, 15), from.y + between(-15, 15)};
    EXPECT_LE(worstDifference({from, to, radius}, 140, 100), 2)
        << from.x << ", " << from.y << " to " << to.x << ", " << to.y;
  }
}

INSTANTIATE_TEST_SUITE_P(Radii, EraserAccuracy,
                         ::testing::Values(0.5, 0.7, 1, 1.5, 2, 3, 10, 27.99, 28, 30, 50, 120, 1000,
                                           4096, 5000, 100000));

RC_GTEST_PROP(EraserProperty, AnySegmentIsWithinTwoStepsOfTheReference, ()) {
  const auto tenth = [](int low, int high) {
    return *rc::gen::inRange(low * 10, high * 10) / 10.0;
  };
  const Capsule capsule{
      {tenth(-20, 110), tenth(-20, 90)}, {tenth(-20, 110), tenth(-20, 90)}, tenth(0, 60) + 0.5};
  RC_ASSERT(worstDifference(capsule, 90, 70) <= 2);
}

RC_GTEST_PROP(EraserProperty, NoPixelEverGains, ()) {
  Raster raster = plainRaster(90, 70);
  std::vector<Rgba8> before = raster.pixels();
  for (int i = 0; i < 5; ++i) {
    const auto whole = [](int low, int high) {
      return static_cast<double>(*rc::gen::inRange(low, high));
    };
    eraseSegment(raster, {whole(-20, 110), whole(-20, 90)}, {whole(-20, 110), whole(-20, 90)},
                 whole(0, 60));
    std::vector<Rgba8> after = raster.pixels();
    for (std::size_t k = 0; k < after.size(); ++k) {
      const bool gained = after[k].red > before[k].red || after[k].green > before[k].green ||
                          after[k].blue > before[k].blue || after[k].alpha > before[k].alpha;
      const bool fringed = after[k].red > after[k].alpha;
      if (gained || fringed) RC_FAIL("a pixel gained");
    }
    before = std::move(after);
  }
}

TEST(Eraser, EdgePixelsKeepAllChannelsInProportion) {
  for (const double radius : {5.0, 40.0}) {
    Raster raster = plainRaster(100, 100, {200, 150, 100, 250});
    eraseDisc(raster, {50.3, 50.6}, radius);
    int edges = 0;
    for (const Rgba8 pixel : raster.pixels()) {
      const double share = pixel.alpha / 250.0;
      EXPECT_NEAR(pixel.red, 200 * share, 1);
      EXPECT_NEAR(pixel.green, 150 * share, 1);
      EXPECT_NEAR(pixel.blue, 100 * share, 1);
      if (pixel.alpha > 0 && pixel.alpha < 250) ++edges;
    }
    EXPECT_GT(edges, 20);
  }
}

TEST(Eraser, LeavesNothingInsideAndAllOutside) {
  for (const double radius : {5.0, 40.0}) {
    Raster raster = plainRaster(100, 100);
    eraseDisc(raster, {50, 50}, radius);
    for (std::size_t y = 0; y < 100; ++y) {
      for (std::size_t x = 0; x < 100; ++x) {
        const double distance =
            std::hypot(static_cast<double>(x) - 49.5, static_cast<double>(y) - 49.5);
        if (distance < radius - 1) {
          EXPECT_EQ(raster.pixel(x, y), kClear);
        }
        if (distance > radius + 1) {
          EXPECT_EQ(raster.pixel(x, y), kCoverColor);
        }
      }
    }
  }
}

TEST(Eraser, DiscIsASegmentWithoutLength) {
  for (const double radius : {3.0, 40.0}) {
    Raster disc = plainRaster(100, 100);
    Raster segment = plainRaster(100, 100);
    eraseDisc(disc, {40.2, 60.7}, radius);
    eraseSegment(segment, {40.2, 60.7}, {40.2, 60.7}, radius);
    EXPECT_EQ(disc.pixels(), segment.pixels());
  }
}

TEST(Eraser, DirectionDoesNotMatter) {
  for (const double radius : {3.0, 40.0}) {
    Raster there = plainRaster(150, 100, kWhite);
    Raster back = plainRaster(150, 100, kWhite);
    eraseSegment(there, {40.2, 60.7}, {90.9, 31.1}, radius);
    eraseSegment(back, {90.9, 31.1}, {40.2, 60.7}, radius);
    for (std::size_t y = 0; y < 100; ++y) {
      for (std::size_t x = 0; x < 150; ++x) {
        EXPECT_NEAR(there.pixel(x, y).alpha, back.pixel(x, y).alpha, 1);
      }
    }
  }
}

TEST(Eraser, TilesHaveNoSeams) {
  // The same shape at places that cut it differently into tiles.
  for (const double radius : {3.0, 40.0}) {
    Raster first = plainRaster(400, 400, kWhite);
    eraseSegment(first, {100.25, 100.5}, {130.75, 120.5}, radius);
    for (const std::size_t move : {1u, 17u, 63u, 64u, 100u}) {
      Raster second = plainRaster(400, 400, kWhite);
      const auto by = static_cast<double>(move);
      eraseSegment(second, {100.25 + by, 100.5 + by}, {130.75 + by, 120.5 + by}, radius);
      for (std::size_t y = 50; y < 180; ++y) {
        for (std::size_t x = 50; x < 180; ++x) {
          ASSERT_NEAR(first.pixel(x, y).alpha, second.pixel(x + move, y + move).alpha, 1);
        }
      }
    }
  }
}

TEST(Eraser, TilesThatTheShapeMissesStayShared) {
  const Raster cover = plainRaster(640, 640);
  for (const double radius : {3.0, 40.0}) {
    Raster raster = cover;
    const CGPoint from{100, 100};
    const CGPoint to{300, 200};
    eraseSegment(raster, from, to, radius);
    constexpr auto kSide = static_cast<double>(Raster::kTileSide);
    for (std::size_t row = 0; row < raster.tileRows(); ++row) {
      for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
        const double x = (static_cast<double>(column) + 0.5) * kSide;
        const double y = (static_cast<double>(row) + 0.5) * kSide;
        const Capsule near{from, to, radius + kSide};
        if (coverage(near, x, y, 1) == 0) {
          EXPECT_TRUE(raster.sharesTile(cover, column, row)) << column << ", " << row;
        }
      }
    }
  }
}

TEST(Eraser, RepeatedStrokesWearEdgesDownToNothing) {
  Raster raster = plainRaster(100, 100);
  Rgba8 before = kCoverColor;
  for (int i = 0; i < 50; ++i) {
    eraseDisc(raster, {50, 50.5}, 30);
    const Rgba8 pixel = raster.pixel(49, 20);
    EXPECT_LE(pixel.alpha, before.alpha);
    before = pixel;
  }
  EXPECT_LE(before.alpha, 1);
}

TEST(Eraser, NothingWithoutARadius) {
  Raster raster = plainRaster(50, 50);
  for (const double radius : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
    eraseDisc(raster, {25, 25}, radius);
    eraseSegment(raster, {5, 5}, {45, 45}, radius);
  }
  EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(2500, kCoverColor));
}

TEST(Eraser, NothingWhenAPointIsNotFinite) {
  Raster raster = plainRaster(50, 50);
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    eraseDisc(raster, {bad, 25}, 5);
    eraseDisc(raster, {25, -bad}, 40);
    eraseSegment(raster, {25, 25}, {bad, 25}, 5);
    eraseSegment(raster, {25, bad}, {25, 25}, 40);
  }
  EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(2500, kCoverColor));
}

TEST(Eraser, NothingWhenTheShapeLiesOutside) {
  Raster raster = plainRaster(50, 50);
  for (const double radius : {5.0, 40.0}) {
    eraseSegment(raster, {-100, -100}, {-100, 200}, radius);
    eraseSegment(raster, {-1e300, 100}, {1e300, 100}, radius);
    eraseDisc(raster, {1e18, 1e18}, radius);
  }
  EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(2500, kCoverColor));
}

TEST(Eraser, SegmentThatComesFromVeryFarCrossesThePicture) {
  for (const double radius : {5.0, 20.0, 30.0}) {
    Raster raster = plainRaster(100, 100);
    eraseSegment(raster, {-1e12, 50}, {1e12, 50}, radius);
    for (std::size_t x = 0; x < 100; ++x) {
      EXPECT_EQ(raster.pixel(x, 50), kClear);
      EXPECT_EQ(raster.pixel(x, 15), kCoverColor);
      EXPECT_EQ(raster.pixel(x, 85), kCoverColor);
    }
  }
}

TEST(Eraser, HugeBrushErasesEverything) {
  for (const double radius : {5000.0, 1e6, 1e19}) {
    Raster raster = plainRaster(100, 100);
    eraseDisc(raster, {30, 60}, radius);
    EXPECT_EQ(raster.pixels(), std::vector<Rgba8>(10000)) << radius;
  }
}

TEST(Eraser, RasterWithoutPixelsStaysAsItIs) {
  Raster raster(0, 10);
  eraseDisc(raster, {0, 0}, 5);
  EXPECT_TRUE(raster.isEmpty());
}

TEST(Eraser, RasterOfOnePixel) {
  for (const double radius : {5.0, 40.0}) {
    Raster raster = plainRaster(1, 1);
    eraseDisc(raster, {0.5, 0.5}, radius);
    EXPECT_EQ(raster.pixel(0, 0), kClear);
  }
}

}  // namespace
}  // namespace kindora
