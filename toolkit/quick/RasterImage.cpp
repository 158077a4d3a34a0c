// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/RasterImage.h"

#include <algorithm>
#include <cstring>

namespace kindora {

QImage toQImage(const Raster& raster) {
  QImage image(static_cast<int>(raster.width()), static_cast<int>(raster.height()),
               QImage::Format_RGBA8888_Premultiplied);
  for (std::size_t y = 0; y < raster.height(); ++y) {
    uchar* line = image.scanLine(static_cast<int>(y));
    for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
      const std::size_t left = column * Raster::kTileSide;
      const std::size_t count = std::min(Raster::kTileSide, raster.width() - left);
      const Rgba8* pixels = raster.tile(column, y / Raster::kTileSide).data() +
                            (y % Raster::kTileSide) * Raster::kTileSide;
      std::memcpy(line + left * sizeof(Rgba8), pixels, count * sizeof(Rgba8));
    }
  }
  return image;
}

}  // namespace kindora
