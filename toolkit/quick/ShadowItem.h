// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/quick/TextureItem.h"

namespace kindora {

/// The soft shadow of a rounded rectangle that fills the item, drawn without a shader. It reaches
/// `blur` points beyond the item on every side.
class ShadowItem : public kindora::TextureItem {
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
  [[nodiscard]] QRectF texturePlace() const override;
  [[nodiscard]] QImage drawn(double ratio) const override;

 private:
  double radius_ = 0;
  double blur_ = 8;
};

}  // namespace kindora
