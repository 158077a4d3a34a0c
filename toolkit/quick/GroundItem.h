// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QQuickItem>
#include <optional>

namespace kindora {

/// A coloured ground and a line along its inside, with rounded corners, cut off by the rounded
/// corners of a rectangle in which it lies. Needs no shader.
class GroundItem final : public QQuickItem {
  Q_OBJECT

 public:
  struct Cut {
    QRectF rect;  ///< in the item's space
    double radius = 0;
    friend bool operator==(const Cut&, const Cut&) = default;
  };
  struct Look {
    QColor color = Qt::transparent;
    QColor borderColor = Qt::transparent;
    double borderWidth = 0;  ///< points
    double radius = 0;
    std::optional<Cut> cut;
    friend bool operator==(const Look&, const Look&) = default;
  };

  explicit GroundItem(QQuickItem* parent);
  void setLook(const Look& look);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void redraw();
  [[nodiscard]] bool isPlain() const;
  void draw(QPainter& painter) const;

  Look look_;
  bool stale_ = true;
  bool plainNode_ = false;  // what the node was made for
};

}  // namespace kindora
