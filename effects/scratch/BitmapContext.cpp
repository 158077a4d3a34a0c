// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/BitmapContext.h"

#include <utility>

#include "effects/scratch/Eraser.h"
#include "platform/FatalError.h"

namespace kindora {

std::shared_ptr<const ColorSpace> ColorSpace::deviceRGB() {
  return std::shared_ptr<const ColorSpace>(new ColorSpace);
}

BitmapContext::BitmapContext(const BitmapLayout& layout,
                             std::shared_ptr<const ColorSpace> colorSpace)
    : layout_(layout), colorSpace_(std::move(colorSpace)), raster_(layout.width, layout.height) {}

void BitmapContext::drawImage(const UIImage& image, CGSize extent) {
  if (blendMode_ != BlendMode::normal) fatalError("an image is drawn in the normal blend mode");
  if (raster_.isEmpty()) return;
  raster_ = image.rendered(layout_.width, layout_.height, extent);
}

void BitmapContext::fillDisc(CGPoint centre, double radius) {
  requireClear();
  eraseDisc(raster_, rasterPoint(centre), radius);
}

void BitmapContext::strokeRoundCappedLine(CGPoint from, CGPoint to) {
  requireClear();
  eraseSegment(raster_, rasterPoint(from), rasterPoint(to), lineWidth_ / 2);
}

CGPoint BitmapContext::rasterPoint(CGPoint point) const {
  return {point.x, static_cast<double>(layout_.height) - point.y};
}

void BitmapContext::requireClear() const {
  if (blendMode_ != BlendMode::clear) fatalError("shapes are drawn in the clear blend mode only");
}

}  // namespace kindora
