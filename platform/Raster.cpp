// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/Raster.h"

#include <algorithm>

#include "platform/FatalError.h"

namespace kindora {

Raster::Raster(std::size_t width, std::size_t height)
    : width_(width),
      height_(height),
      columns_((width + kTileSide - 1) / kTileSide),
      rows_((height + kTileSide - 1) / kTileSide) {
  // All tiles of a transparent raster are one and the same until somebody writes.
  tiles_.assign(columns_ * rows_, std::make_shared<Tile>());
}

Raster::Raster(std::size_t width, std::size_t height, std::span<const Rgba8> pixels)
    : Raster(width, height) {
  if (pixels.size() < width * height) fatalError("too few pixels for the raster");
  for (std::size_t row = 0; row < rows_; ++row) {
    for (std::size_t column = 0; column < columns_; ++column) {
      Tile& target = writableTile(column, row);
      const std::size_t left = column * kTileSide;
      const std::size_t count = std::min(kTileSide, width - left);
      const std::size_t top = row * kTileSide;
      const std::size_t lines = std::min(kTileSide, height - top);
      for (std::size_t line = 0; line < lines; ++line) {
        std::copy_n(pixels.data() + (top + line) * width + left, count,
                    target.data() + line * kTileSide);
      }
    }
  }
}

Raster::Tile& Raster::writableTile(std::size_t column, std::size_t row) {
  std::shared_ptr<Tile>& slot = tiles_[row * columns_ + column];
  if (slot.use_count() > 1) slot = std::make_shared<Tile>(*slot);
  return *slot;
}

bool Raster::sharesTile(const Raster& other, std::size_t column, std::size_t row) const {
  return width_ == other.width_ && height_ == other.height_ &&
         tiles_[row * columns_ + column] == other.tiles_[row * columns_ + column];
}

std::vector<Rgba8> Raster::pixels() const {
  std::vector<Rgba8> result(width_ * height_);
  for (std::size_t y = 0; y < height_; ++y) {
    for (std::size_t column = 0; column < columns_; ++column) {
      const std::size_t left = column * kTileSide;
      std::copy_n(tile(column, y / kTileSide).data() + (y % kTileSide) * kTileSide,
                  std::min(kTileSide, width_ - left), result.data() + y * width_ + left);
    }
  }
  return result;
}

Raster croppedRaster(const Raster& raster, const CGRect& rect) {
  const auto left = static_cast<std::size_t>(rect.origin.x);
  const auto top = static_cast<std::size_t>(rect.origin.y);
  const auto width = static_cast<std::size_t>(rect.size.width);
  const auto height = static_cast<std::size_t>(rect.size.height);
  std::vector<Rgba8> pixels;
  pixels.reserve(width * height);
  for (std::size_t y = top; y < top + height; ++y) {
    for (std::size_t x = left; x < left + width; ++x) pixels.push_back(raster.pixel(x, y));
  }
  return {width, height, pixels};
}

}  // namespace kindora
