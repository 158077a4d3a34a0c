// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/UIImageColorOverlay.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "tests/platform/Filled.h"

namespace kindora {
namespace {

constexpr UIColor kShade = UIColor::blackColor().colorWithAlphaComponent(0.25);

void expectEveryPixel(const UIImageRef& image, Rgba8 color) {
  const std::vector<Rgba8> pixels = image->raster().pixels();
  ASSERT_FALSE(pixels.empty());
  EXPECT_EQ(pixels, std::vector<Rgba8>(pixels.size(), color));
}

// Notes the sizes at which it is asked to draw.
class NotingSource final : public ImageSource {
 public:
  [[nodiscard]] Raster render(std::size_t width, std::size_t height) const override {
    sizes.emplace_back(width, height);
    return filled(width, height, {255, 255, 255, 255});
  }
  mutable std::vector<std::pair<std::size_t, std::size_t>> sizes;
};

TEST(UIImageColorOverlay, QuarterBlackOverWhiteIsThreeQuartersGrey) {
  const auto white = UIImage::imageWithRaster(filled(5, 4, {255, 255, 255, 255}));
  expectEveryPixel(imageWithColorOverlay(white, kShade), {191, 191, 191, 255});
}

TEST(UIImageColorOverlay, QuarterBlackOverNothingIsQuarterBlack) {
  const auto clear = UIImage::imageWithRaster(Raster(5, 4));
  expectEveryPixel(imageWithColorOverlay(clear, kShade), {0, 0, 0, 64});
}

TEST(UIImageColorOverlay, OpaqueColourHidesThePicture) {
  const auto half = UIImage::imageWithRaster(filled(70, 3, {10, 20, 30, 128}));
  expectEveryPixel(imageWithColorOverlay(half, {1, 0.2, 0, 1}), {255, 51, 0, 255});
}

TEST(UIImageColorOverlay, ClearColourLeavesThePicture) {
  const auto half = UIImage::imageWithRaster(filled(3, 3, {10, 20, 30, 128}));
  expectEveryPixel(imageWithColorOverlay(half, UIColor::clearColor()), {10, 20, 30, 128});
}

TEST(UIImageColorOverlay, HalfTransparentPixelsComposePremultiplied) {
  const auto red = UIImage::imageWithRaster(filled(2, 2, {128, 0, 0, 128}));
  // Alpha 128 / 255 * 0.75 + 0.25 = 0.6265; red 128 * 0.75 = 96.
  expectEveryPixel(imageWithColorOverlay(red, kShade), {96, 0, 0, 160});
}

TEST(UIImageColorOverlay, TranslucentColourIsPremultiplied) {
  const auto black = UIImage::imageWithRaster(filled(2, 2, {0, 0, 0, 255}));
  expectEveryPixel(imageWithColorOverlay(black, {1, 0.4, 0, 0.5}), {128, 51, 0, 255});
}

TEST(UIImageColorOverlay, NoChannelExceedsAlpha) {
  for (int alpha = 0; alpha < 256; ++alpha) {
    const auto byte = static_cast<std::uint8_t>(alpha);
    const auto image = UIImage::imageWithRaster(filled(1, 1, {byte, byte, byte, byte}));
    const Rgba8 pixel = imageWithColorOverlay(image, {1, 1, 0.5, 0.37})->raster().pixel(0, 0);
    EXPECT_LE(pixel.red, pixel.alpha);
    EXPECT_LE(pixel.green, pixel.alpha);
    EXPECT_LE(pixel.blue, pixel.alpha);
  }
}

TEST(UIImageColorOverlay, CoversEveryTileOfALargePicture) {
  const auto white = UIImage::imageWithRaster(filled(200, 150, {255, 255, 255, 255}));
  expectEveryPixel(imageWithColorOverlay(white, kShade), {191, 191, 191, 255});
}

TEST(UIImageColorOverlay, KeepsSizeAndScale) {
  const auto image = UIImage::imageWithRaster(Raster(80, 80), 2);
  const UIImageRef result = imageWithColorOverlay(image, kShade);
  EXPECT_EQ(result->size(), (CGSize{40, 40}));
  EXPECT_EQ(result->scale(), 2);
  EXPECT_EQ(result->raster().width(), 80u);
  EXPECT_EQ(result->raster().height(), 80u);
}

TEST(UIImageColorOverlay, RoundsPixelSizesUpAndKeepsTheDeclaredSize) {
  const auto image = UIImage::imageWithRaster(Raster(20, 20), {10.2, 9.5}, 1.5);
  const UIImageRef result = imageWithColorOverlay(image, kShade);
  EXPECT_EQ(result->size(), (CGSize{10.2, 9.5}));
  EXPECT_EQ(result->scale(), 1.5);
  EXPECT_EQ(result->raster().width(), 16u);
  EXPECT_EQ(result->raster().height(), 15u);
}

TEST(UIImageColorOverlay, LeavesTheReceiverAlone) {
  const auto image = UIImage::imageWithRaster(filled(3, 3, {10, 20, 30, 128}));
  const UIImageRef result = imageWithColorOverlay(image, kShade);
  EXPECT_NE(result, image);
  EXPECT_NE(result->raster().pixel(0, 0), image->raster().pixel(0, 0));
  expectEveryPixel(image, {10, 20, 30, 128});
}

TEST(UIImageColorOverlay, DrawsOnlyAtTheSizeThatIsNeeded) {
  const auto source = std::make_shared<NotingSource>();
  const auto image = UIImage::imageWithSource(source, {1000, 1000}, 2);
  const UIImageRef result = imageWithColorOverlay(image, kShade);
  EXPECT_TRUE(source->sizes.empty());
  EXPECT_EQ(result->rendered(40, 30).pixel(39, 29), (Rgba8{191, 191, 191, 255}));
  EXPECT_EQ(source->sizes, (std::vector<std::pair<std::size_t, std::size_t>>{{40, 30}}));
}

TEST(UIImageColorOverlayDeathTest, StopsWithoutPixels) {
  const auto flat = UIImage::imageWithRaster(Raster(10, 0));
  EXPECT_DEATH((void)imageWithColorOverlay(flat, kShade), "fatal error: an image without pixels");
  const auto narrow = UIImage::imageWithRaster(Raster(0, 10));
  EXPECT_DEATH((void)imageWithColorOverlay(narrow, kShade), "fatal error: an image without pixels");
}

}  // namespace
}  // namespace kindora
