// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "toolkit/collection/UICollectionView.h"
#include "toolkit/collection/UICollectionViewLayoutAttributes.h"

namespace kindora {

/// Decides where the cells of a collection view are. Main thread only.
class UICollectionViewLayout {
 public:
  UICollectionViewLayout() = default;
  virtual ~UICollectionViewLayout() = default;
  UICollectionViewLayout(const UICollectionViewLayout&) = delete;
  UICollectionViewLayout& operator=(const UICollectionViewLayout&) = delete;

  /// The view that is laid out; null when there is none. Not owned; a view takes itself out before
  /// it goes.
  [[nodiscard]] const UICollectionView* collectionView() const { return collectionView_; }
  void setCollectionView(const UICollectionView* view);

  /// Forgets what was prepared, because items or sizes have changed.
  virtual void invalidateLayout() = 0;
  /// Makes the layout ready to answer for the present bounds. Cheap when little has changed.
  virtual void prepareLayout() = 0;
  /// Size of all the content, in points.
  [[nodiscard]] virtual CGSize collectionViewContentSize() const = 0;
  /// The cells that lie in the rectangle, in order of their items, then what decorates them;
  /// touching edges do not count.
  [[nodiscard]] virtual std::vector<UICollectionViewLayoutAttributesRef>
  layoutAttributesForElementsInRect(const CGRect& rect) const = 0;
  /// Null when the layout knows no such cell.
  [[nodiscard]] virtual UICollectionViewLayoutAttributesRef layoutAttributesForItemAtIndexPath(
      IndexPath path) const = 0;
  /// Told before the bounds change; true when everything is to be laid out anew for it.
  [[nodiscard]] virtual bool shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) = 0;

  /// Moves on by that many seconds what moves by itself; true when any cell moved.
  virtual bool advance(double /*seconds*/) { return false; }
  /// True when no further advance would move anything.
  [[nodiscard]] virtual bool isResting() const { return true; }

 private:
  const UICollectionView* collectionView_ = nullptr;
};

}  // namespace kindora
