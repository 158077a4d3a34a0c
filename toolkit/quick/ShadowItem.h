// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QQuickItem>

namespace kindora {

/// The soft shadow of a rounded rectangle that fills the item, drawn without a shader. It reaches
/// `blur` points beyond the item on every side.
class ShadowItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
  Q_PROPERTY(double blur READ blur WRITE setBlur NOTIFY blurChanged)

 public:
  explicit ShadowItem(QQuickItem* parent = nullptr);

  [[nodiscard]] double radius() const { return radius_; }
  void setRadius(double radius);
  [[nodiscard]] double blur() const { return blur_; }
  void setBlur(double blur);

 signals:
  void radiusChanged();
  void blurChanged();

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void redraw();
  double radius_ = 0;
  double blur_ = 8;
  bool dirty_ = true;
};

}  // namespace kindora
