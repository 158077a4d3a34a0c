// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/UIImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "tests/platform/Filled.h"

namespace kindora {
namespace {

constexpr Rgba8 kWhite{255, 255, 255, 255};
constexpr Rgba8 kRed{255, 0, 0, 255};

// A grey whose value is its place from left to right, 10 a pixel.
Raster ramp(std::size_t width, std::size_t height) {
  std::vector<Rgba8> pixels;
  for (std::size_t i = 0; i < width * height; ++i) {
    const auto grey = static_cast<std::uint8_t>(10 * (i % width));
    pixels.push_back({grey, grey, grey, 255});
  }
  return {width, height, pixels};
}

class CountingSource final : public ImageSource {
 public:
  [[nodiscard]] Raster render(std::size_t width, std::size_t height) const override {
    ++calls;
    return filled(width, height, kRed);
  }
  mutable int calls = 0;
};

TEST(UIImage, SizeIsPixelsDividedByScale) {
  const auto image = UIImage::imageWithRaster(Raster(80, 60), 2);
  EXPECT_EQ(image->size(), (CGSize{40, 30}));
  EXPECT_EQ(image->scale(), 2);
  EXPECT_EQ(image->pixelSize(), (CGSize{80, 60}));
}

TEST(UIImage, KeepsADeclaredSizeOfItsOwn) {
  const auto image = UIImage::imageWithRaster(Raster(80, 60), {100.75, 50}, 1);
  EXPECT_EQ(image->size(), (CGSize{100.75, 50}));
  EXPECT_EQ(image->pixelSize(), (CGSize{100.75, 50}));
  EXPECT_EQ(image->raster().width(), 80u);
}

TEST(UIImage, EqualImagesAreDifferentObjects) {
  const Raster raster = filled(3, 3, kWhite);
  EXPECT_NE(UIImage::imageWithRaster(raster), UIImage::imageWithRaster(raster));
}

TEST(UIImage, SourceDrawsOnFirstNeedAndOnceOnly) {
  const auto source = std::make_shared<CountingSource>();
  const auto image = UIImage::imageWithSource(source, {10.1, 5}, 2);
  EXPECT_EQ(source->calls, 0);
  EXPECT_EQ(image->raster().width(), 21u);
  EXPECT_EQ(image->raster().height(), 10u);
  EXPECT_EQ(source->calls, 1);
}

TEST(UIImage, SourceDrawsAnewAtOtherSizes) {
  const auto source = std::make_shared<CountingSource>();
  const auto image = UIImage::imageWithSource(source, {10, 10}, 1);
  const Raster small = image->rendered(4, 3);
  EXPECT_EQ(small.pixels(), std::vector<Rgba8>(12, kRed));
  EXPECT_EQ(source->calls, 1);
}

TEST(UIImage, SourceIsNotAskedForNothing) {
  const auto source = std::make_shared<CountingSource>();
  const auto image = UIImage::imageWithSource(source, {0, 10}, 1);
  EXPECT_TRUE(image->raster().isEmpty());
  EXPECT_TRUE(image->rendered(5, 0).isEmpty());
  EXPECT_EQ(source->calls, 0);
}

TEST(UIImage, RenderedAtItsOwnSizeSharesThePixels) {
  const auto image = UIImage::imageWithRaster(ramp(20, 10));
  EXPECT_TRUE(image->rendered(20, 10).sharesTile(image->raster(), 0, 0));
  EXPECT_TRUE(image->rendered(20, 10, {20, 10}).sharesTile(image->raster(), 0, 0));
}

TEST(UIImage, ResamplingKeepsAPlainColour) {
  const auto image = UIImage::imageWithRaster(filled(20, 10, {40, 30, 20, 50}));
  using Size = std::pair<std::size_t, std::size_t>;
  for (const auto& [width, height] : {Size{7, 3}, Size{1, 1}, Size{50, 31}}) {
    EXPECT_EQ(image->rendered(width, height).pixels(),
              std::vector<Rgba8>(width * height, Rgba8{40, 30, 20, 50}));
  }
}

TEST(UIImage, GrowingInterpolatesBetweenPixelCentres) {
  const auto image = UIImage::imageWithRaster(ramp(4, 1));
  const Raster grown = image->rendered(8, 1);
  // Target centres lie a quarter of a source pixel beside the source's.
  EXPECT_EQ(grown.pixel(0, 0).red, 0);
  EXPECT_EQ(grown.pixel(1, 0).red, 3);
  EXPECT_EQ(grown.pixel(2, 0).red, 8);
  EXPECT_EQ(grown.pixel(7, 0).red, 30);
}

TEST(UIImage, ShrinkingAverages) {
  const auto image = UIImage::imageWithRaster(ramp(16, 2));
  const Raster small = image->rendered(4, 1);
  // The middle targets average symmetrically about 5.5 and 9.5.
  EXPECT_EQ(small.pixel(1, 0).red, 55);
  EXPECT_EQ(small.pixel(2, 0).red, 95);
}

TEST(UIImage, StretchedOverAFractionCutsRightAndTop) {
  // Three rows, bottom one red, stretched to 3.5 rows: of the upper one only half is left.
  std::vector<Rgba8> pixels(9, kWhite);
  std::fill(pixels.begin() + 6, pixels.end(), kRed);
  const auto image = UIImage::imageWithRaster(Raster(3, 3, pixels));
  const Raster result = image->rendered(3, 3, {3.5, 3.5});
  EXPECT_EQ(result.pixel(0, 2), kRed);
  EXPECT_EQ(result.pixel(2, 2), kRed);
  EXPECT_EQ(result.pixel(0, 0), kWhite);
  // The middle row's centre is 2 rows of 3.5 above the top of the stretched picture: source row
  // 2 * 3 / 3.5 - 0.5 = 1.214, so 21 % of the red row below.
  EXPECT_NEAR(result.pixel(1, 1).green, 255 * (1 - 0.2143), 1);
}

TEST(UIImage, StretchedOverAFractionKeepsTheLeftEdge) {
  const auto image = UIImage::imageWithRaster(ramp(10, 1));
  const Raster result = image->rendered(10, 1, {10.5, 1});
  for (std::size_t x = 0; x < 10; ++x) {
    const double place = (static_cast<double>(x) + 0.5) * 10 / 10.5 - 0.5;
    EXPECT_NEAR(result.pixel(x, 0).red, std::max(0.0, 10 * place), 1) << x;
  }
}

TEST(UIImage, IsDrawnAsItIsUnlessToldOtherwise) {
  EXPECT_EQ(UIImage::imageWithRaster(ramp(2, 2))->renderingMode(), UIImageRenderingMode::automatic);
}

TEST(UIImage, AsATemplateItIsAnotherImageOfTheSamePicture) {
  const auto image = UIImage::imageWithRaster(ramp(4, 2), {5, 6}, 2);
  const auto mask = image->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate);
  EXPECT_NE(mask, image);
  EXPECT_EQ(mask->renderingMode(), UIImageRenderingMode::alwaysTemplate);
  EXPECT_EQ(image->renderingMode(), UIImageRenderingMode::automatic);
  EXPECT_EQ(mask->size(), image->size());
  EXPECT_EQ(mask->scale(), 2);
  EXPECT_EQ(mask->raster().pixel(3, 1), image->raster().pixel(3, 1));
}

TEST(UIImage, ATemplateOfASourceIsDrawnByTheSource) {
  const auto source = std::make_shared<CountingSource>();
  const auto image = UIImage::imageWithSource(source, {10, 5}, 1);
  const auto mask = image->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate);
  EXPECT_EQ(source->calls, 0);
  EXPECT_EQ(mask->raster().pixel(0, 0), kRed);
  EXPECT_EQ(source->calls, 1);
}

TEST(WholePixels, RoundsUp) {
  EXPECT_EQ(wholePixels(10.2), 11u);
  EXPECT_EQ(wholePixels(10), 10u);
  EXPECT_EQ(wholePixels(0), 0u);
}

TEST(WholePixels, ForgivesTheRoundingOfAProduct) {
  EXPECT_EQ(wholePixels(100.00000000000001), 100u);
}

}  // namespace
}  // namespace kindora
