// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "photos/PhotoPageController.h"
#include "platform/SquareCrop.h"
#include "toolkit/quick/ImageHandle.h"

namespace kindora {

/// The user moves and zooms a picture under a square, which becomes the edited image.
class PhotoCropController : public kindora::PhotoPageController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pages are made by the image picker")
  Q_PROPERTY(kindora::ImageHandle image READ image CONSTANT)
  Q_PROPERTY(QSizeF pictureSize READ pictureSize CONSTANT)
  Q_PROPERTY(QRectF pictureFrame READ pictureFrame NOTIFY cropChanged)
  Q_PROPERTY(double zoom READ zoom NOTIFY cropChanged)

 public:
  explicit PhotoCropController(UIImageRef image);

  [[nodiscard]] ImageHandle image() const { return {image_}; }
  /// In pixels.
  [[nodiscard]] QSizeF pictureSize() const;
  /// Where the picture lies, in points from the square's corner.
  [[nodiscard]] QRectF pictureFrame() const;
  [[nodiscard]] double zoom() const { return crop_.zoom(); }
  [[nodiscard]] const SquareCrop& crop() const { return crop_; }

  void viewDidLoad() override;
  [[nodiscard]] QUrl page() const override;

  /// The square's side on the screen, in points.
  Q_INVOKABLE void setSide(double side);
  Q_INVOKABLE void pan(QPointF points);
  Q_INVOKABLE void zoomBy(double factor, QPointF about);
  Q_INVOKABLE void choose();
  Q_INVOKABLE void cancel();

 signals:
  void cropChanged();

 private:
  UIImageRef image_;
  SquareCrop crop_;
};

}  // namespace kindora
