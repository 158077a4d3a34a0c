// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/UIImageColorOverlay.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

// What source-over makes of each value of one premultiplied channel below the colour's.
class ChannelOver {
 public:
  ChannelOver(double component, double alpha) {
    for (std::size_t below = 0; below < results_.size(); ++below) {
      const double over = 255 * component * alpha + static_cast<double>(below) * (1 - alpha);
      results_[below] = static_cast<std::uint8_t>(std::lround(over));
    }
  }
  [[nodiscard]] std::uint8_t operator()(std::uint8_t below) const { return results_[below]; }

 private:
  std::array<std::uint8_t, 256> results_{};
};

class ColorOverlay final : public ImageSource {
 public:
  ColorOverlay(UIImageRef image, UIColor color)
      : image_(std::move(image)),
        red_(color.red, color.alpha),
        green_(color.green, color.alpha),
        blue_(color.blue, color.alpha),
        alpha_(1, color.alpha) {}

  [[nodiscard]] Raster render(std::size_t width, std::size_t height) const override {
    Raster raster = image_->rendered(width, height);
    for (std::size_t row = 0; row < raster.tileRows(); ++row) {
      for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
        cover(raster.writableTile(column, row),
              std::min(Raster::kTileSide, width - column * Raster::kTileSide),
              std::min(Raster::kTileSide, height - row * Raster::kTileSide));
      }
    }
    return raster;
  }

 private:
  void cover(Raster::Tile& tile, std::size_t width, std::size_t height) const {
    for (std::size_t y = 0; y < height; ++y) {
      for (std::size_t x = 0; x < width; ++x) {
        Rgba8& pixel = tile[y * Raster::kTileSide + x];
        pixel = {red_(pixel.red), green_(pixel.green), blue_(pixel.blue), alpha_(pixel.alpha)};
      }
    }
  }

  UIImageRef image_;
  ChannelOver red_;
  ChannelOver green_;
  ChannelOver blue_;
  ChannelOver alpha_;
};

}  // namespace

UIImageRef imageWithColorOverlay(const UIImageRef& image, UIColor color) {
  const CGSize pixels = image->pixelSize();
  if (wholePixels(pixels.width) == 0 || wholePixels(pixels.height) == 0) {
    fatalError("an image without pixels cannot be drawn");
  }
  return UIImage::imageWithSource(std::make_shared<ColorOverlay>(image, color), image->size(),
                                  image->scale());
}

}  // namespace kindora
