// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/quick/ViewItem.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {

/// Draws an image view that has a border, and of which the image may stand inside the bounds.
class ImageViewItem : public kindora::ViewItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool fills READ fills NOTIFY viewChanged)
  Q_PROPERTY(QColor borderColor READ borderColor NOTIFY viewChanged)
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY viewChanged)

 public:
  using ViewItem::ViewItem;

  /// True when the image covers the bounds, false when it stands inside them.
  [[nodiscard]] bool fills() const;
  [[nodiscard]] QColor borderColor() const;
  [[nodiscard]] double borderWidth() const;
};

}  // namespace kindora
