// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TextureItem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include "toolkit/quick/RasterNode.h"

namespace kindora {

TextureItem::TextureItem(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void TextureItem::redraw() {
  stale_ = true;
  update();
}

void TextureItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) redraw();
}

QSGNode* TextureItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const QRectF place = texturePlace();
  if (place.isEmpty()) {
    delete old;
    stale_ = true;
    return nullptr;
  }
  auto* node = static_cast<QSGImageNode*>(old);
  if (node == nullptr) {
    node = makeImageNode(*window());
    stale_ = true;
  }
  if (stale_) {
    const QImage picture = drawn(window()->effectiveDevicePixelRatio());
    node->setTexture(window()->createTextureFromImage(picture));
    stale_ = false;
  }
  node->setRect(place);
  return node;
}

}  // namespace kindora
