// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/qt/quick/ViewItem.h"
#include "platform/view/UIImageView.h"

namespace kindora {

/// Draws an image view of which more is set than the image: how the image lies, a tint for
/// templates, a border.
class ImageViewItem : public kindora::ViewItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor tint READ tint NOTIFY viewChanged)
  Q_PROPERTY(bool fills READ fills NOTIFY viewChanged)
  Q_PROPERTY(QColor borderColor READ borderColor NOTIFY viewChanged)
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY viewChanged)

 public:
  using ViewItem::ViewItem;

  /// What the image is to be drawn in; invalid unless it is a template.
  [[nodiscard]] QColor tint() const;
  /// True when the image covers the bounds, false when it stands inside them.
  [[nodiscard]] bool fills() const;
  [[nodiscard]] QColor borderColor() const;
  [[nodiscard]] double borderWidth() const;

 private:
  [[nodiscard]] const UIImageView* imageView() const;
};

}  // namespace kindora
