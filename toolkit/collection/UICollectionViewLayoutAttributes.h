// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/Geometry.h"

namespace kindora {

/// Where a cell or a decoration is; in the collection view's content, in points. Shared between a
/// layout, the physics that moves the cell and the view that shows it. A layout may derive a class
/// of its own to say more about how an element looks.
class UICollectionViewLayoutAttributes {
 public:
  /// Of a cell, or of a decoration of that kind that belongs to the cell.
  UICollectionViewLayoutAttributes(IndexPath indexPath, const CGRect& frame,
                                   std::optional<std::string> decorationKind = std::nullopt)
      : indexPath_(indexPath),
        center_(centerOf(frame)),
        size_(frame.size),
        decorationKind_(std::move(decorationKind)) {}
  virtual ~UICollectionViewLayoutAttributes() = default;
  UICollectionViewLayoutAttributes(const UICollectionViewLayoutAttributes&) = default;
  UICollectionViewLayoutAttributes& operator=(const UICollectionViewLayoutAttributes&) = default;

  [[nodiscard]] IndexPath indexPath() const { return indexPath_; }
  [[nodiscard]] CGPoint center() const { return center_; }
  void setCenter(CGPoint center) { center_ = center; }
  [[nodiscard]] CGSize size() const { return size_; }
  [[nodiscard]] CGRect frame() const { return rectAround(center_, size_); }
  /// None for a cell.
  [[nodiscard]] const std::optional<std::string>& decorationKind() const { return decorationKind_; }
  /// What has a higher one lies above; in the order in which the layout tells them where it is the
  /// same.
  [[nodiscard]] int zIndex() const { return zIndex_; }
  void setZIndex(int zIndex) { zIndex_ = zIndex; }

  friend bool operator==(const UICollectionViewLayoutAttributes&,
                         const UICollectionViewLayoutAttributes&) = default;

 private:
  IndexPath indexPath_;
  CGPoint center_;
  CGSize size_;
  std::optional<std::string> decorationKind_;
  int zIndex_ = 0;
};

using UICollectionViewLayoutAttributesRef = std::shared_ptr<UICollectionViewLayoutAttributes>;

}  // namespace kindora
