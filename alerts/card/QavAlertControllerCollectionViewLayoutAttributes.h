// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"
#include "toolkit/collection/UICollectionViewLayoutAttributes.h"

namespace kindora {

/// Where a button or a line between buttons is, and what colour it has.
class QavAlertControllerCollectionViewLayoutAttributes final
    : public UICollectionViewLayoutAttributes {
 public:
  using UICollectionViewLayoutAttributes::UICollectionViewLayoutAttributes;

  [[nodiscard]] const UIColor& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const UIColor& color) { backgroundColor_ = color; }

  friend bool operator==(const QavAlertControllerCollectionViewLayoutAttributes&,
                         const QavAlertControllerCollectionViewLayoutAttributes&) = default;

 private:
  UIColor backgroundColor_ = UIColor::clearColor();
};

}  // namespace kindora
