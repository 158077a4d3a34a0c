// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/RasterNode.h"

#include <QImage>
#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGImageNode>
#include <cmath>

namespace kindora {

QSGImageNode* makeImageNode(QQuickWindow& window) {
  QSGImageNode* node = window.createImageNode();
  node->setOwnsTexture(true);
  node->setFiltering(QSGTexture::Linear);
  return node;
}

QSGNode* rasterNode(QQuickItem& item, QSGNode* old, const QRectF& place, bool stale,
                    const std::function<void(QPainter&)>& draw) {
  QQuickWindow& window = *item.window();
  const double ratio = window.effectiveDevicePixelRatio();
  const QSize pixels(static_cast<int>(std::ceil(place.width() * ratio - 1e-6)),
                     static_cast<int>(std::ceil(place.height() * ratio - 1e-6)));
  if (pixels.isEmpty()) {
    delete old;
    return nullptr;
  }
  auto* node = static_cast<QSGImageNode*>(old);
  if (node == nullptr) {
    node = makeImageNode(window);
    stale = true;
  }
  if (stale) {
    QImage image(pixels, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(ratio, ratio);
    painter.translate(-place.topLeft());
    draw(painter);
    painter.end();
    node->setTexture(window.createTextureFromImage(image));
  }
  node->setRect({place.topLeft(), QSizeF(pixels) / ratio});
  return node;
}

}  // namespace kindora
