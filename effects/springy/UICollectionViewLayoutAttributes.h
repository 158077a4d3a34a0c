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
      : indexPath_(indexPath), center_(centerOf(frame)), size_(frame.size) {}

  [[nodiscard]] IndexPath indexPath() const { return indexPath_; }
  [[nodiscard]] CGPoint center() const { return center_; }
  void setCenter(CGPoint center) { center_ = center; }
  [[nodiscard]] CGSize size() const { return size_; }
  [[nodiscard]] CGRect frame() const { return rectAround(center_, size_); }

 private:
  IndexPath indexPath_;
  CGPoint center_;
  CGSize size_;
};

using UICollectionViewLayoutAttributesRef = std::shared_ptr<UICollectionViewLayoutAttributes>;

}  // namespace kindora
