// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/UIImage.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace kindora {
namespace {

struct Tap {
  std::size_t first = 0;
  std::vector<double> weights;
};

// For each target pixel the source pixels that it averages: a triangle as wide as the larger of one
// source and one target pixel, so that shrinking averages areas and growing interpolates.
// The source is stretched over extent target pixels, of which the first `skipped` are left out.
std::vector<Tap> taps(std::size_t from, std::size_t to, double extent, double skipped) {
  const double ratio = static_cast<double>(from) / extent;
  const double reach = std::max(1.0, ratio);
  std::vector<Tap> result(to);
  for (std::size_t i = 0; i < to; ++i) {
    const double centre = (static_cast<double>(i) + skipped + 0.5) * ratio - 0.5;
    const auto first = static_cast<long>(std::ceil(centre - reach));
    const auto last = static_cast<long>(std::floor(centre + reach));
    Tap& tap = result[i];
    double sum = 0;
    for (long k = std::max(0L, first); k <= std::min(last, static_cast<long>(from) - 1); ++k) {
      const double weight = std::max(0.0, 1 - std::abs(static_cast<double>(k) - centre) / reach);
      if (tap.weights.empty()) tap.first = static_cast<std::size_t>(k);
      tap.weights.push_back(weight);
      sum += weight;
    }
    for (double& weight : tap.weights) weight /= sum;
  }
  return result;
}

struct Sum {
  double red = 0, green = 0, blue = 0, alpha = 0;
  void add(Rgba8 pixel, double weight) {
    red += pixel.red * weight;
    green += pixel.green * weight;
    blue += pixel.blue * weight;
    alpha += pixel.alpha * weight;
  }
  [[nodiscard]] Rgba8 rounded() const {
    const auto byte = [](double value) {
      const double above = value + 0.5;
      return static_cast<std::uint8_t>(above);
    };
    return {byte(red), byte(green), byte(blue), byte(alpha)};
  }
};

Raster resampled(const Raster& source, std::size_t width, std::size_t height, CGSize extent) {
  if (source.isEmpty()) return Raster(width, height);
  const std::vector<Rgba8> pixels = source.pixels();
  const std::vector<Tap> across = taps(source.width(), width, extent.width, 0);
  const std::vector<Tap> down =
      taps(source.height(), height, extent.height, extent.height - static_cast<double>(height));
  std::vector<Rgba8> wide(width * source.height());
  for (std::size_t y = 0; y < source.height(); ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      Sum sum;
      for (std::size_t k = 0; k < across[x].weights.size(); ++k) {
        sum.add(pixels[y * source.width() + across[x].first + k], across[x].weights[k]);
      }
      wide[y * width + x] = sum.rounded();
    }
  }
  std::vector<Rgba8> result(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      Sum sum;
      for (std::size_t k = 0; k < down[y].weights.size(); ++k) {
        sum.add(wide[(down[y].first + k) * width + x], down[y].weights[k]);
      }
      result[y * width + x] = sum.rounded();
    }
  }
  return {width, height, result};
}

}  // namespace

std::size_t wholePixels(double pixels) {
  constexpr double kRounding = 1e-6;
  return static_cast<std::size_t>(std::max(0.0, std::ceil(pixels - kRounding)));
}

UIImage::UIImage(std::optional<Raster> raster, std::shared_ptr<const ImageSource> source,
                 CGSize size, double scale)
    : raster_(std::move(raster)), source_(std::move(source)), size_(size), scale_(scale) {}

UIImageRef UIImage::imageWithRaster(Raster raster, double scale) {
  const CGSize size{static_cast<double>(raster.width()) / scale,
                    static_cast<double>(raster.height()) / scale};
  return imageWithRaster(std::move(raster), size, scale);
}

UIImageRef UIImage::imageWithRaster(Raster raster, CGSize size, double scale) {
  return UIImageRef(new UIImage(std::move(raster), nullptr, size, scale));
}

UIImageRef UIImage::imageWithSource(std::shared_ptr<const ImageSource> source, CGSize size,
                                    double scale) {
  return UIImageRef(new UIImage(std::nullopt, std::move(source), size, scale));
}

UIImageRef UIImage::imageWithRenderingMode(UIImageRenderingMode mode) const {
  auto* image = new UIImage(raster_, source_, size_, scale_);
  image->renderingMode_ = mode;
  return UIImageRef(image);
}

const Raster& UIImage::raster() const {
  if (!raster_) {
    const CGSize pixels = pixelSize();
    raster_ = rendered(wholePixels(pixels.width), wholePixels(pixels.height));
  }
  return *raster_;
}

Raster UIImage::rendered(std::size_t width, std::size_t height) const {
  if (raster_ && raster_->width() == width && raster_->height() == height) return *raster_;
  if (width == 0 || height == 0) return {width, height};
  if (source_) return source_->render(width, height);
  return resampled(*raster_, width, height,
                   {static_cast<double>(width), static_cast<double>(height)});
}

Raster UIImage::rendered(std::size_t width, std::size_t height, CGSize extent) const {
  if (extent == CGSize{static_cast<double>(width), static_cast<double>(height)}) {
    return rendered(width, height);
  }
  if (width == 0 || height == 0) return {width, height};
  return resampled(raster(), width, height, extent);
}

}  // namespace kindora
