// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ImageViewItem.h"

#include "toolkit/controllers/Colors.h"

namespace kindora {

bool ImageViewItem::fills() const {
  return imageView() != nullptr && imageView()->contentMode() == UIViewContentMode::scaleAspectFill;
}

QColor ImageViewItem::borderColor() const {
  return imageView() != nullptr ? toQColor(imageView()->border().color) : QColor();
}

double ImageViewItem::borderWidth() const {
  return imageView() != nullptr ? imageView()->border().width : 0;
}

}  // namespace kindora
