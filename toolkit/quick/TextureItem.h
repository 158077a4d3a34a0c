// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QQuickItem>

namespace kindora {

/// Shows one picture of its own drawing, which is drawn anew when the item has another size or asks
/// for it.
class TextureItem : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS

 protected:
  explicit TextureItem(QQuickItem* parent = nullptr);

  /// What has been drawn is stale.
  void redraw();

  /// In the item's space; nothing shows while it is empty.
  [[nodiscard]] virtual QRectF texturePlace() const = 0;
  /// The picture for the place, at so many pixels a point.
  [[nodiscard]] virtual QImage drawn(double ratio) const = 0;

  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  bool stale_ = true;
};

}  // namespace kindora
