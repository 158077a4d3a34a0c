// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/Geometry.h"

namespace kindora {

/// Where a cell is; in the collection view's content, in points. Shared between a layout, the
/// physics that moves the cell and the view that shows it.
class UICollectionViewLayoutAttributes final {
 public:
  UICollectionViewLayoutAttributes(IndexPath indexPath, const CGRect& frame)
      : indexPath_(indexPath),
        center_{frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2},
        size_(frame.size) {}

  [[nodiscard]] IndexPath indexPath() const { return indexPath_; }
  [[nodiscard]] CGPoint center() const { return center_; }
  void setCenter(CGPoint center) { center_ = center; }
  [[nodiscard]] CGSize size() const { return size_; }
  [[nodiscard]] CGRect frame() const {
    return {{center_.x - size_.width / 2, center_.y - size_.height / 2}, size_};
  }

 private:
  IndexPath indexPath_;
  CGPoint center_;
  CGSize size_;
};

using UICollectionViewLayoutAttributesRef = std::shared_ptr<UICollectionViewLayoutAttributes>;

}  // namespace kindora
