// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/PageCurlItem.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

#include "toolkit/quick/RasterImage.h"

namespace kindora {
namespace {

constexpr double kTilt = 0.35;        // radians between the fold and a horizontal line
constexpr double kFlap = 0.38;        // of the whole way: how far the page is bent back
constexpr double kShade = 0.09;       // of the whole way: how far the shade reaches
constexpr double kShadeAlpha = 0.38;  // where it is darkest
const QColor kBack(236, 241, 232);    // of the page

// A band across the page's way, far wider than the page.
QRectF band(double from, double to, double reach) { return {-reach, from, 2 * reach, to - from}; }

void shade(QPainter& painter, double dark, double clear, double reach, double strength) {
  QLinearGradient gradient(0, dark, 0, clear);
  gradient.setColorAt(0, QColor::fromRgbF(0, 0, 0, static_cast<float>(kShadeAlpha * strength)));
  gradient.setColorAt(1, QColor(0, 0, 0, 0));
  painter.fillRect(band(std::min(dark, clear), std::max(dark, clear), reach), gradient);
}

}  // namespace

PageCurlItem::PageCurlItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

void PageCurlItem::show(const UIImageRef& image, double radius, double laid) {
  if (image_ != image) page_ = {};
  image_ = image;
  radius_ = radius;
  laid_ = laid;
  update();
}

QImage PageCurlItem::page(QSize pixels) {
  if (page_.size() != pixels) {
    page_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    page_.fill(kBack);
    if (image_) {
      const CGSize size = image_->size();
      const double factor = std::max(pixels.width() / size.width, pixels.height() / size.height);
      const int width = std::max(1, static_cast<int>(std::lround(size.width * factor)));
      const int height = std::max(1, static_cast<int>(std::lround(size.height * factor)));
      QPainter(&page_).drawImage((pixels.width() - width) / 2, (pixels.height() - height) / 2,
                                 toQImage(image_->rendered(static_cast<std::size_t>(width),
                                                           static_cast<std::size_t>(height))));
    }
  }
  return page_;
}

void PageCurlItem::paint(QPainter* target) {
  const double ratio = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
  const QSize pixels = (size() * ratio).toSize();
  if (pixels.isEmpty()) return;
  const QImage page = this->page(pixels);
  QImage drawn(pixels, QImage::Format_ARGB32_Premultiplied);
  drawn.fill(Qt::transparent);
  QPainter painter(&drawn);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);

  // From here on y runs along the way of the fold, from the top left corner to the opposite one.
  const double width = pixels.width();
  const double height = pixels.height();
  const double way = width * std::sin(kTilt) + height * std::cos(kTilt);
  const double reach = width + height;
  const double fold = way * laid_;
  const double flap = std::min(way - fold, way * kFlap);
  // Comes and goes with the fold, so that a page lies flat at both ends of its way.
  const double strength = std::clamp(std::min(laid_, 1 - laid_) / kShade, 0.0, 1.0);
  const auto turned = [&](QPainter& brush) { brush.rotate(-kTilt * 180 / M_PI); };

  // The fold's shade on what lies below, and the part that is laid.
  turned(painter);
  shade(painter, fold, fold + way * kShade, reach, strength);
  painter.setClipRect(band(-reach, fold, reach));
  painter.resetTransform();
  painter.drawImage(0, 0, page);
  turned(painter);
  shade(painter, fold - flap, fold - flap - way * kShade, reach, strength);

  // The part that is bent back: its back, through which the page's mirror image shines.
  painter.setClipRect(band(fold - flap, fold, reach));
  painter.fillRect(band(fold - flap, fold, reach), kBack);
  painter.save();
  painter.setOpacity(0.16);
  painter.translate(0, 2 * fold);
  painter.scale(1, -1);
  painter.rotate(kTilt * 180 / M_PI);
  painter.drawImage(0, 0, page);
  painter.restore();
  QLinearGradient bend(0, fold - flap, 0, fold);
  bend.setColorAt(0, QColor(255, 255, 255, 150));
  bend.setColorAt(0.55, QColor(255, 255, 255, 0));
  bend.setColorAt(1, QColor(0, 0, 0, 90));
  painter.fillRect(band(fold - flap, fold, reach), bend);
  painter.setClipping(false);

  // The corners.
  painter.resetTransform();
  QPainterPath shape;
  shape.addRoundedRect(QRectF(drawn.rect()), radius_ * ratio, radius_ * ratio);
  QImage mask(pixels, QImage::Format_ARGB32_Premultiplied);
  mask.fill(Qt::transparent);
  QPainter masking(&mask);
  masking.setRenderHint(QPainter::Antialiasing);
  masking.fillPath(shape, Qt::black);
  masking.end();
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  painter.drawImage(0, 0, mask);
  painter.end();
  target->drawImage(QRectF(QPointF(0, 0), size()), drawn);
}

}  // namespace kindora
