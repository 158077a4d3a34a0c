// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

class UICollectionView;

/// Decides on sizes and spacings of a flow layout, in points. Answers must stay the same until the
/// layout is invalidated or the collection view has another size across the scroll direction.
class UICollectionViewDelegateFlowLayout {
 public:
  virtual ~UICollectionViewDelegateFlowLayout() = default;

  [[nodiscard]] virtual CGSize collectionViewLayoutSizeForItemAtIndexPath(
      const UICollectionView& collectionView, IndexPath path) = 0;
  /// Whether all items of the section have the size of its first. Then only that one is asked for,
  /// and a section costs the same however many items it has; otherwise each item is asked for when
  /// the layout is prepared, and each line leaves a record.
  [[nodiscard]] virtual bool collectionViewLayoutHasUniformItemSizeInSection(
      const UICollectionView& /*collectionView*/, int /*section*/) {
    return false;
  }
  /// The least distance between two items of a line.
  [[nodiscard]] virtual double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) = 0;
  /// The distance between two lines.
  [[nodiscard]] virtual double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) = 0;
  [[nodiscard]] virtual UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(
      const UICollectionView& collectionView, int section) = 0;
};

}  // namespace kindora
