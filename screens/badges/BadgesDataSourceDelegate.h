// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include "model/Challenge.h"
#include "toolkit/controllers/CollectionView.h"

namespace kindora {

class UIViewController;

inline constexpr std::string_view kBadgeCell = "badgeCell";

/// What the grid of badges shows, and its geometry: three badges a row, in points.
class BadgesDataSourceDelegate final : public UICollectionViewDataSource,
                                       public UICollectionViewDelegateFlowLayout {
 public:
  /// Follows the segue to a badge's page; not owned.
  UIViewController* parentVC = nullptr;
  const int NUM_ITEMS_PER_ROW = 3;
  const int NUM_ITEMS_PER_COL = 4;
  std::vector<ChallengeRef> badges;

  /// Copies the store's list of completed challenges; with reload shows it.
  void refreshData(CollectionView& collectionView, bool reload);
  /// Stops when there is no such badge.
  [[nodiscard]] const ChallengeRef& badgeAt(IndexPath path) const;

  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int section) override;
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath path) override;
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override;

  CGSize collectionViewLayoutSizeForItemAtIndexPath(const UICollectionView& collectionView,
                                                    IndexPath path) override;
  bool collectionViewLayoutHasUniformItemSizeInSection(const UICollectionView& collectionView,
                                                       int section) override;
  double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(const UICollectionView& collectionView,
                                                          int section) override;

 private:
  CollectionView* view_ = nullptr;  // of the last refresh, to take cells from
};

}  // namespace kindora
