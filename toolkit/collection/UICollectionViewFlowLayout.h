// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A grid of cells that flows like text; see FlowSection for how lines are filled. When it scrolls
// sideways, what is said there of width and height is exchanged: lines are columns, the first on
// the left.
//
// What the collection view's delegate says comes before the layout's own sizes and spacings. A
// section whose items have one size is laid out by arithmetic: its price in time and memory does
// not grow with the number of items.
#pragma once

#include <vector>

#include "toolkit/collection/FlowSection.h"
#include "toolkit/collection/UICollectionViewLayout.h"

namespace kindora {

enum class UICollectionViewScrollDirection { vertical = 0, horizontal = 1 };

class UICollectionViewFlowLayout : public UICollectionViewLayout {
 public:
  [[nodiscard]] double minimumInteritemSpacing() const { return minimumInteritemSpacing_; }
  void setMinimumInteritemSpacing(double points);
  [[nodiscard]] double minimumLineSpacing() const { return minimumLineSpacing_; }
  void setMinimumLineSpacing(double points);
  [[nodiscard]] CGSize itemSize() const { return itemSize_; }
  void setItemSize(CGSize size);
  [[nodiscard]] UIEdgeInsets sectionInset() const { return sectionInset_; }
  void setSectionInset(UIEdgeInsets insets);

  [[nodiscard]] UICollectionViewScrollDirection scrollDirection() const { return scrollDirection_; }
  void setScrollDirection(UICollectionViewScrollDirection direction);

  void invalidateLayout() override;
  /// Asks for counts, sizes and spacings when the layout was invalidated, and invalidates it first
  /// when the size across the scroll direction is no longer that of the last time.
  void prepareLayout() override;
  [[nodiscard]] CGSize collectionViewContentSize() const override;
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> layoutAttributesForElementsInRect(
      const CGRect& rect) const override;
  [[nodiscard]] UICollectionViewLayoutAttributesRef layoutAttributesForItemAtIndexPath(
      IndexPath path) const override;
  /// True when the size across the scroll direction changes.
  [[nodiscard]] bool shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) override;

 protected:
  /// Makes what is told of a cell. Overriders answer with a class of their own.
  [[nodiscard]] virtual UICollectionViewLayoutAttributesRef makeAttributes(
      IndexPath path, const CGRect& frame) const;

 private:
  [[nodiscard]] bool isHorizontal() const {
    return scrollDirection_ == UICollectionViewScrollDirection::horizontal;
  }
  [[nodiscard]] double across(CGSize size) const {
    return isHorizontal() ? size.height : size.width;
  }
  // From sections to the content and back.
  [[nodiscard]] CGSize turned(CGSize size) const;
  [[nodiscard]] CGRect turned(const CGRect& rect) const;
  [[nodiscard]] UIEdgeInsets turned(const UIEdgeInsets& insets) const;
  [[nodiscard]] FlowMetrics metricsOfSection(int section) const;

  double minimumInteritemSpacing_ = 10;
  double minimumLineSpacing_ = 10;
  CGSize itemSize_{50, 50};
  UIEdgeInsets sectionInset_;
  UICollectionViewScrollDirection scrollDirection_ = UICollectionViewScrollDirection::vertical;
  bool prepared_ = false;
  double preparedAcross_ = 0;
  std::vector<FlowSection> sections_;
};

}  // namespace kindora
