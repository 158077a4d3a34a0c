// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/PictureItem.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/services/Services.h"
#include "toolkit/quick/RasterImage.h"

namespace kindora {

PictureItem::PictureItem(QQuickItem* parent) : TextureItem(parent) {}

void PictureItem::setImage(const ImageHandle& image) {
  if (image_ == image) return;
  image_ = image;
  emit imageChanged();
  redraw();
}

void PictureItem::setImageName(const QString& name) {
  if (imageName_ == name) return;
  imageName_ = name;
  emit imageNameChanged();
  setImage({services().bundle->imageNamed(name.toStdString())});
}

void PictureItem::setTint(const QColor& tint) {
  if (tint_ == tint) return;
  tint_ = tint;
  emit tintChanged();
  redraw();
}

void PictureItem::setGround(const QColor& ground) {
  if (ground_ == ground) return;
  ground_ = ground;
  emit groundChanged();
  redraw();
}

void PictureItem::setRadius(double radius) {
  if (radius_ == radius) return;
  radius_ = radius;
  emit radiusChanged();
  redraw();
}

void PictureItem::setFits(bool fits) {
  if (fits_ == fits) return;
  fits_ = fits;
  emit fitsChanged();
  redraw();
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData& data) {
  TextureItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) redraw();
}

QRectF PictureItem::texturePlace() const {
  const bool isShown = image_.image || ground_.alpha() > 0;
  return isShown ? boundingRect() : QRectF();
}

QImage PictureItem::drawn(double ratio) const {
  const QSize pixels(static_cast<int>(std::ceil(width() * ratio)),
                     static_cast<int>(std::ceil(height() * ratio)));
  QImage result(pixels, QImage::Format_RGBA8888_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath shape;
  const double corner = std::min(radius_ * ratio, std::min(pixels.width(), pixels.height()) / 2.0);
  shape.addRoundedRect(QRectF(QPointF(0, 0), pixels), corner, corner);
  if (!image_.image) {
    painter.fillPath(shape, ground_);
    return result;
  }
  const CGSize size = image_.image->size();
  const double across = pixels.width() / size.width;
  const double down = pixels.height() / size.height;
  const double factor = fits_ ? std::min(across, down) : std::max(across, down);
  const QSize filled(std::max(1, static_cast<int>(std::lround(size.width * factor))),
                     std::max(1, static_cast<int>(std::lround(size.height * factor))));
  QImage picture = toQImage(image_.image->rendered(static_cast<std::size_t>(filled.width()),
                                                   static_cast<std::size_t>(filled.height())));
  if (tint_.isValid()) {
    QPainter tinting(&picture);
    tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tinting.fillRect(picture.rect(), tint_);
  }
  const QPoint corner0((pixels.width() - filled.width()) / 2,
                       (pixels.height() - filled.height()) / 2);
  if (corner == 0) {
    painter.drawImage(corner0, picture);
    return result;
  }
  // Beside a picture that fits, the brush would begin anew.
  if (fits_) {
    QPainterPath whole;
    whole.addRect(QRectF(corner0, filled));
    shape = shape.intersected(whole);
  }
  QBrush brush(picture);
  brush.setTransform(QTransform::fromTranslate(corner0.x(), corner0.y()));
  painter.fillPath(shape, brush);
  return result;
}

}  // namespace kindora
