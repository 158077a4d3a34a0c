// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/GroundItem.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <algorithm>

#include "toolkit/quick/RasterNode.h"

namespace kindora {
namespace {

QPainterPath rounded(const QRectF& rect, double radius) {
  const double corner = std::clamp(radius, 0.0, std::min(rect.width(), rect.height()) / 2);
  QPainterPath path;
  if (rect.isValid()) path.addRoundedRect(rect, corner, corner);
  return path;
}

// Whether the rounded corners take anything away from the rectangle.
bool cuts(const GroundItem::Cut& cut, const QRectF& rect) {
  const double radius = std::min({cut.radius, cut.rect.width() / 2, cut.rect.height() / 2});
  return !cut.rect.adjusted(radius, 0, -radius, 0).contains(rect) &&
         !cut.rect.adjusted(0, radius, 0, -radius).contains(rect);
}

}  // namespace

GroundItem::GroundItem(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void GroundItem::setLook(const Look& look) {
  if (look_ == look) return;
  look_ = look;
  redraw();
}

void GroundItem::redraw() {
  stale_ = true;
  update();
}

void GroundItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) redraw();
}

void GroundItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) redraw();
}

bool GroundItem::isPlain() const {
  const bool square = look_.radius <= 0 && (!look_.cut || !cuts(*look_.cut, boundingRect()));
  return square && (look_.borderWidth <= 0 || look_.borderColor.alpha() == 0);
}

void GroundItem::draw(QPainter& painter) const {
  QPainterPath shape = rounded(boundingRect(), look_.radius);
  const double line = look_.borderWidth;
  QPainterPath inner =
      rounded(boundingRect().adjusted(line, line, -line, -line), look_.radius - line);
  if (look_.cut && cuts(*look_.cut, boundingRect())) {
    const QPainterPath window = rounded(look_.cut->rect, look_.cut->radius);
    shape = shape.intersected(window);
    inner = inner.intersected(window);
  }
  painter.fillPath(shape, look_.color);
  if (line > 0) painter.fillPath(shape.subtracted(inner), look_.borderColor);
}

QSGNode* GroundItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const bool plain = isPlain();
  const bool empty = look_.color.alpha() == 0 && look_.borderWidth <= 0;
  if (empty || plain != plainNode_) {
    delete old;
    old = nullptr;
  }
  plainNode_ = plain;
  if (empty) return nullptr;
  const bool stale = std::exchange(stale_, false);
  if (!plain) {
    return rasterNode(*this, old, boundingRect(), stale, [this](QPainter& p) { draw(p); });
  }
  auto* node = static_cast<QSGRectangleNode*>(old);
  if (node == nullptr) node = window()->createRectangleNode();
  node->setRect(boundingRect());
  node->setColor(look_.color);
  return node;
}

}  // namespace kindora
