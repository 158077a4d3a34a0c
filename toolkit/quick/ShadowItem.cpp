// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ShadowItem.h"

#include <algorithm>
#include <cmath>

namespace kindora {
namespace {

// Distance from the edge of a rounded rectangle of half extents (w, h) about the origin; negative
// inside.
double distanceToRoundedRect(double x, double y, double w, double h, double radius) {
  const double dx = std::abs(x) - (w - radius);
  const double dy = std::abs(y) - (h - radius);
  return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) -
         radius;
}

QImage shadow(double width, double height, double radius, double blur, double ratio) {
  const double fullWidth = width + 2 * blur;
  const double fullHeight = height + 2 * blur;
  QImage image(static_cast<int>(std::ceil(fullWidth * ratio)),
               static_cast<int>(std::ceil(fullHeight * ratio)),
               QImage::Format_RGBA8888_Premultiplied);
  const double corner = std::min({radius, width / 2, height / 2});
  for (int py = 0; py < image.height(); ++py) {
    uchar* line = image.scanLine(py);
    const double y = (py + 0.5) / ratio - fullHeight / 2;
    for (int px = 0; px < image.width(); ++px) {
      const double x = (px + 0.5) / ratio - fullWidth / 2;
      const double distance = distanceToRoundedRect(x, y, width / 2, height / 2, corner);
      const double t = std::clamp((blur - distance) / (2 * blur), 0.0, 1.0);
      const double alpha = t * t * (3 - 2 * t);  // smooth from full inside to none outside
      uchar* pixel = line + std::ptrdiff_t{4} * px;
      pixel[0] = pixel[1] = pixel[2] = 0;
      pixel[3] = static_cast<uchar>(std::lround(alpha * 255));
    }
  }
  return image;
}

}  // namespace

ShadowItem::ShadowItem(QQuickItem* parent) : TextureItem(parent) {}

void ShadowItem::setRadius(double radius) {
  if (radius_ == radius) return;
  radius_ = radius;
  emit radiusChanged();
  redraw();
}

void ShadowItem::setBlur(double blur) {
  if (blur_ == blur) return;
  blur_ = blur;
  emit blurChanged();
  redraw();
}

QRectF ShadowItem::texturePlace() const {
  if (width() <= 0 || height() <= 0 || blur_ <= 0) return {};
  return boundingRect().adjusted(-blur_, -blur_, blur_, blur_);
}

QImage ShadowItem::drawn(double ratio) const {
  return shadow(width(), height(), radius_, blur_, ratio);
}

}  // namespace kindora
