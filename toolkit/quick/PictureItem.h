// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include "toolkit/quick/ImageHandle.h"
#include "toolkit/quick/TextureItem.h"

namespace kindora {

/// Draws a picture in exactly the item's device pixels, so that it is crisp at any size: aspect
/// fill inside a rectangle with rounded corners, or all of it as large as it fits. Without a
/// picture a neutral ground of the same shape.
class PictureItem : public kindora::TextureItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::ImageHandle image READ image WRITE setImage NOTIFY imageChanged)
  Q_PROPERTY(QString imageName READ imageName WRITE setImageName NOTIFY imageNameChanged)
  Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)
  Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged)
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
  Q_PROPERTY(bool fits READ fits WRITE setFits NOTIFY fitsChanged)

 public:
  explicit PictureItem(QQuickItem* parent = nullptr);

  [[nodiscard]] const ImageHandle& image() const { return image_; }
  void setImage(const ImageHandle& image);
  /// Shows the resource of that name instead of `image`.
  [[nodiscard]] const QString& imageName() const { return imageName_; }
  void setImageName(const QString& name);
  /// A colour with which a single-coloured picture is drawn; invalid leaves it as it is.
  [[nodiscard]] const QColor& tint() const { return tint_; }
  void setTint(const QColor& tint);
  /// What stands where there is no picture; transparent draws nothing.
  [[nodiscard]] const QColor& ground() const { return ground_; }
  void setGround(const QColor& ground);
  [[nodiscard]] double radius() const { return radius_; }
  void setRadius(double radius);
  /// Whether the whole picture shows, rather than fills the item.
  [[nodiscard]] bool fits() const { return fits_; }
  void setFits(bool fits);

 signals:
  void imageChanged();
  void imageNameChanged();
  void tintChanged();
  void groundChanged();
  void radiusChanged();
  void fitsChanged();

 protected:
  [[nodiscard]] QRectF texturePlace() const override;
  [[nodiscard]] QImage drawn(double ratio) const override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  ImageHandle image_;
  QString imageName_;
  QColor tint_;
  QColor ground_ = Qt::transparent;
  double radius_ = 0;
  bool fits_ = false;
};

}  // namespace kindora
