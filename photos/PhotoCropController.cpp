// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoCropController.h"

#include <utility>

#include "toolkit/controllers/PageUrl.h"

namespace kindora {

PhotoCropController::PhotoCropController(UIImageRef image)
    : image_(std::move(image)), crop_(image_->pixelSize(), 1) {
  setTitle(tr("Move and Scale"));
}

QUrl PhotoCropController::page() const { return pageUrl(u"Kindora.Photos", u"PhotoCropPage"); }

// Its buttons stand on the page, so that the bar's place is the way back.
void PhotoCropController::viewDidLoad() {
  UIViewController::viewDidLoad();  // NOLINT(bugprone-parent-virtual-call)
}

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

}  // namespace kindora
