// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Covers, touches and an ear for the tests of the scratch view.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "effects/scratch/JxScratchImageView.h"
#include "tests/platform/Filled.h"

namespace kindora {

using Cells = std::vector<std::pair<std::size_t, std::size_t>>;

inline constexpr Rgba8 kCoverColor{200, 150, 100, 255};
inline constexpr Rgba8 kClear{};

inline Raster plainRaster(std::size_t width, std::size_t height, Rgba8 color = kCoverColor) {
  return filled(width, height, color);
}

/// A cover of width x height pixels.
inline UIImageRef cover(std::size_t width, std::size_t height, double scale = 1) {
  return UIImage::imageWithRaster(plainRaster(width, height), scale);
}

inline std::shared_ptr<JxScratchImageView> scratchView(CGSize size) {
  auto view = std::make_shared<JxScratchImageView>();
  view->setFrame({{7, 11}, size});
  return view;
}

/// A view of the cover's size in points.
inline std::shared_ptr<JxScratchImageView> scratchView(const UIImageRef& image,
                                                       std::size_t radius) {
  auto view = scratchView(image->size());
  view->setImage(image, radius);
  return view;
}

inline UITouch began(CGPoint at) { return {UITouchPhase::began, at, at}; }
inline UITouch moved(CGPoint from, CGPoint to) { return {UITouchPhase::moved, to, from}; }

/// The cells that hold 1, row by row.
inline Cells markedCells(const JxScratchImageView& view) {
  Cells cells;
  const auto& matrix = view.maskedMatrix();
  for (std::size_t y = 0; y < matrix->max().y; ++y) {
    for (std::size_t x = 0; x < matrix->max().x; ++x) {
      if (matrix->valueForCoordinates(x, y) == 1) cells.emplace_back(x, y);
    }
  }
  return cells;
}

/// Keeps what it is told.
class Ear final : public JxScratchImageViewDelegate {
 public:
  void jxScratchImageView(JxScratchImageView& view, double progress) override {
    heard.push_back(progress);
    from = &view;
    if (whenTold) whenTold();
  }
  std::vector<double> heard;
  JxScratchImageView* from = nullptr;
  std::function<void()> whenTold;
};

}  // namespace kindora
