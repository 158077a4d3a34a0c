// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A premultiplied RGBA8 bitmap that is cheap to copy: its pixels lie in square tiles, and copies
// share every tile until one of them writes to it.
//
// Row 0 is the top row. Not for use from several threads at once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace kindora {

struct Rgba8 {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 0;
  friend constexpr bool operator==(const Rgba8&, const Rgba8&) = default;
};
static_assert(sizeof(Rgba8) == 4);

class Raster {
 public:
  static constexpr std::size_t kTileSide = 64;
  /// One tile's pixels, row after row; those outside the raster stay transparent.
  using Tile = std::array<Rgba8, kTileSide * kTileSide>;

  Raster() = default;
  /// A transparent raster. A width or height of 0 gives an empty one.
  Raster(std::size_t width, std::size_t height);
  /// Copies width x height pixels, row after row without gaps; stops when the span is shorter.
  Raster(std::size_t width, std::size_t height, std::span<const Rgba8> pixels);

  [[nodiscard]] std::size_t width() const { return width_; }
  [[nodiscard]] std::size_t height() const { return height_; }
  [[nodiscard]] bool isEmpty() const { return width_ == 0 || height_ == 0; }
  [[nodiscard]] std::size_t tileColumns() const { return columns_; }
  [[nodiscard]] std::size_t tileRows() const { return rows_; }

  /// The pixel at (x, y), which must lie inside.
  [[nodiscard]] Rgba8 pixel(std::size_t x, std::size_t y) const {
    return tile(x / kTileSide, y / kTileSide)[(y % kTileSide) * kTileSide + x % kTileSide];
  }
  void setPixel(std::size_t x, std::size_t y, Rgba8 value) {
    writableTile(x / kTileSide, y / kTileSide)[(y % kTileSide) * kTileSide + x % kTileSide] = value;
  }

  [[nodiscard]] const Tile& tile(std::size_t column, std::size_t row) const {
    return *tiles_[row * columns_ + column];
  }
  /// The tile for writing. When a copy of this raster shares it, this raster gets its own first.
  [[nodiscard]] Tile& writableTile(std::size_t column, std::size_t row);
  /// True when both rasters hold the very same tile there, so that nothing can differ.
  [[nodiscard]] bool sharesTile(const Raster& other, std::size_t column, std::size_t row) const;

  /// All pixels, row after row without gaps.
  [[nodiscard]] std::vector<Rgba8> pixels() const;

 private:
  std::size_t width_ = 0;
  std::size_t height_ = 0;
  std::size_t columns_ = 0;
  std::size_t rows_ = 0;
  std::vector<std::shared_ptr<Tile>> tiles_;
};

/// The rectangle of whole pixels cut from the raster, inside which it must lie.
[[nodiscard]] Raster croppedRaster(const Raster& raster, const CGRect& rect);

}  // namespace kindora
