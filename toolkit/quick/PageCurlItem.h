// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QQuickPaintedItem>

#include "platform/UIImage.h"

namespace kindora {

/// A picture that is laid over what is below it like a page: from the top left to the bottom right,
/// with the part that is still to be laid bent back, and shade along the fold. Needs no shader.
class PageCurlItem final : public QQuickPaintedItem {
  Q_OBJECT

 public:
  explicit PageCurlItem(QQuickItem* parent = nullptr);

  /// Shows the picture, aspect fill with rounded corners, laid down by a part from 0 to 1.
  void show(const UIImageRef& image, double radius, double laid);

  void paint(QPainter* painter) override;

 private:
  [[nodiscard]] QImage page(QSize pixels);

  UIImageRef image_;
  QImage page_;  // the picture in the item's device pixels
  double radius_ = 0;
  double laid_ = 0;
};

}  // namespace kindora
