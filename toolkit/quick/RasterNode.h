// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <functional>

class QPainter;
class QQuickItem;
class QQuickWindow;
class QSGImageNode;
class QSGNode;

namespace kindora {

/// A node that owns its texture and smooths it.
[[nodiscard]] QSGImageNode* makeImageNode(QQuickWindow& window);

/// The node that shows, in that part of the item's space, what the function draws there in exactly
/// its device pixels. Draws only when there was no node or the drawing is stale, and no node for an
/// empty place. For QQuickItem::updatePaintNode.
[[nodiscard]] QSGNode* rasterNode(QQuickItem& item, QSGNode* old, const QRectF& place, bool stale,
                                  const std::function<void(QPainter&)>& draw);

}  // namespace kindora
