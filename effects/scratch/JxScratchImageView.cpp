// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/JxScratchImageView.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kindora {
namespace {

constexpr std::size_t kDefaultRadius = 30;

// Far more cells than any cover has: only a point that is infinitely, or absurdly, far outside
// (from a view without a width) could walk on.
constexpr int kLongestWalk = 1 << 20;

// Towards zero. What no word can hold, not-a-number above all, counts as 0.
std::size_t truncated(double value) {
  constexpr double kWords = 0x1p64;
  return value >= 0 && value < kWords ? static_cast<std::size_t>(value) : 0;
}

CGSize sizeOf(const UIImageRef& image) { return image ? image->size() : CGSize{}; }
CGSize pixelSizeOf(const UIImageRef& image) { return image ? image->pixelSize() : CGSize{}; }

// No grid at all has no cells, yet reads as unmarked everywhere: a view without a cover counts
// every mark.
JxMatrix::Max maxOf(const std::shared_ptr<JxMatrix>& matrix) {
  return matrix ? matrix->max() : JxMatrix::Max{};
}

// Not-a-number passes through.
double clamped(double value, double extent) {
  const double most = std::min(value, extent - 1);
  return most < 0 ? 0 : most;
}

double stepFrom(double begin, double end, double extent, std::size_t tiles) {
  return (begin < end ? 1.0 : -1.0) * extent / static_cast<double>(tiles);
}

}  // namespace

void JxScratchImageView::setImage(const UIImageRef& image) {
  if (image == this->image()) return;
  setImage(image, kDefaultRadius);
}

void JxScratchImageView::setImage(const UIImageRef& image, std::size_t radius) {
  UIImageView::setImage(image);
  radius_ = radius;
  initialize();
}

void JxScratchImageView::initialize() {
  setUserInteractionEnabled(true);
  tilesFilled_ = 0;
  const UIImageRef cover = image();
  if (!cover) {
    tilesY_ = 0;
    tilesX_ = 0;
    maskedMatrix_.reset();
    imageContext_.reset();
    colorSpace_.reset();
    return;
  }
  const CGSize pixels = cover->pixelSize();
  if (!colorSpace_) colorSpace_ = ColorSpace::deviceRGB();
  imageContext_.reset();
  imageContext_ =
      std::make_unique<BitmapContext>(BitmapLayout{.width = truncated(pixels.width),
                                                   .height = truncated(pixels.height),
                                                   .bytesPerRow = truncated(pixels.width * 4.0)},
                                      colorSpace_);
  imageContext_->drawImage(*cover, pixels);
  imageContext_->setBlendMode(BlendMode::clear);
  const double diameter = 2 * static_cast<double>(radius_);
  tilesX_ = truncated(pixels.width / diameter);
  tilesY_ = truncated(pixels.height / diameter);
  maskedMatrix_ = JxMatrix::initWithMaxX(tilesX_, tilesY_);
}

double JxScratchImageView::maskingProgress() const {
  const JxMatrix::Max max = maxOf(maskedMatrix_);
  return static_cast<double>(tilesFilled_) / static_cast<double>(max.y * max.x);
}

// The snapshot goes to the base class: through this class's own setter it would wipe the grid.
void JxScratchImageView::touchesBegan(const UITouches& touches) {
  UIImageView::setImage(addTouches(touches));
}

void JxScratchImageView::touchesMoved(const UITouches& touches) {
  UIImageView::setImage(addTouches(touches));
}

UIImageRef JxScratchImageView::addTouches(const UITouches& touches) {
  const CGSize pixels = pixelSizeOf(image());
  if (imageContext_) {
    imageContext_->setFillColor(UIColor::clearColor());
    imageContext_->setStrokeColor({0, 0, 0, 0});
  }
  const std::int32_t filledBefore = tilesFilled_;
  for (const UITouch& touch : touches) scratch(touch, pixels);
  if (tilesFilled_ != filledBefore) {
    if (const auto delegate = delegate_.lock()) {
      delegate->jxScratchImageView(*this, maskingProgress());
    }
  }
  return imageContext_ ? UIImage::imageWithRaster(imageContext_->raster()) : nullptr;
}

void JxScratchImageView::scratch(const UITouch& touch, CGSize pixels) {
  const CGSize view = bounds().size;
  const auto bitmapPoint = [&](CGPoint location) -> CGPoint {
    return {pixels.width * location.x / view.width,
            pixels.height * (view.height - location.y) / view.height};
  };
  const CGPoint point = bitmapPoint(touch.location);
  const auto radius = static_cast<double>(radius_);
  if (touch.phase == UITouchPhase::began) {
    if (imageContext_) imageContext_->fillDisc(point, radius);
    fillTileWithPoint({point.x - radius, point.y - radius});
  } else if (touch.phase == UITouchPhase::moved) {
    const CGPoint previous = bitmapPoint(touch.previousLocation);
    if (imageContext_) {
      imageContext_->setStrokeColor(UIColor::yellowColor());
      imageContext_->setLineWidth(2 * radius);
      imageContext_->strokeRoundCappedLine(previous, point);
    }
    fillTileWithTwoPoints(point, previous);
  }
}

void JxScratchImageView::fillTileWithPoint(CGPoint point) {
  const CGSize size = sizeOf(image());
  const JxMatrix::Max max = maxOf(maskedMatrix_);
  const double x = clamped(point.x, size.width);
  const double y = clamped(point.y, size.height);
  const std::size_t column = truncated(x * static_cast<double>(max.x) / size.width);
  const std::size_t row = truncated(y * static_cast<double>(max.y) / size.height);
  if (maskedMatrix_) {
    if (maskedMatrix_->valueForCoordinates(column, row) != 0) return;
    maskedMatrix_->setValue(1, column, row);
  }
  ++tilesFilled_;
}

void JxScratchImageView::fillTileWithTwoPoints(CGPoint begin, CGPoint end) {
  const CGSize size = sizeOf(image());
  const double stepX = stepFrom(begin.x, end.x, size.width, tilesX_);
  const double stepY = stepFrom(begin.y, end.y, size.height, tilesY_);
  // Both steps lead away from an end that is the beginning, so that walk would not end. Steps that
  // are not numbers end it by themselves.
  const bool endless = begin == end && !std::isnan(stepX) && !std::isnan(stepY);
  if (!endless && !(begin.x > end.x)) {
    int left = kLongestWalk;
    do {
      if (begin.y > end.y) break;
      fillTileWithPoint(begin);
      begin.x += stepX;
      begin.y += stepY;
    } while (begin.x <= end.x && --left > 0);
  }
  fillTileWithPoint(end);
}

void JxScratchImageView::setDelegate(std::weak_ptr<JxScratchImageViewDelegate> delegate) {
  delegate_ = std::move(delegate);
}

void JxScratchImageView::setMaskedMatrix(std::shared_ptr<JxMatrix> matrix) {
  maskedMatrix_ = std::move(matrix);
}

}  // namespace kindora
