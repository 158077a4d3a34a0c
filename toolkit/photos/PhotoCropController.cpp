// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/photos/PhotoCropController.h"

#include <utility>
#include <vector>

namespace kindora {

PhotoCropController::PhotoCropController(UIImageRef image)
    : image_(std::move(image)), crop_(image_->pixelSize(), 1) {
  setTitle(QStringLiteral("Move and Scale"));
}

QUrl PhotoCropController::page() const {
  return QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Toolkit/Photos/PhotoCropPage.qml"));
}

// Its buttons stand on the page, so that the bar's place is the way back.
void PhotoCropController::viewDidLoad() { UIViewController::viewDidLoad(); }

QSizeF PhotoCropController::pictureSize() const {
  const CGSize size = image_->pixelSize();
  return {size.width, size.height};
}

QRectF PhotoCropController::pictureFrame() const {
  const CGRect frame = crop_.pictureFrame();
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

void PhotoCropController::setSide(double side) {
  if (side <= 0 || side == crop_.side()) return;
  crop_.setSide(side);
  emit cropChanged();
}

void PhotoCropController::pan(QPointF points) {
  crop_.pan({points.x(), points.y()});
  emit cropChanged();
}

void PhotoCropController::zoomBy(double factor, QPointF about) {
  crop_.zoomBy(factor, {about.x(), about.y()});
  emit cropChanged();
}

void PhotoCropController::choose() {
  picker().finish(
      {.originalImage = image_,
       .editedImage = UIImage::imageWithRaster(croppedRaster(image_->raster(), crop_.cropRect()))});
}

void PhotoCropController::cancel() { picker().cancel(); }

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
