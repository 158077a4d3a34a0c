// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgesDataSourceDelegate.h"

#include <cmath>

#include "model/ChallengeData.h"
#include "platform/FatalError.h"
#include "screens/badges/BadgeCollectionViewCell.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {
namespace {

constexpr double kSpacing = 10;
constexpr double kItemHeight = 140;

}  // namespace

void BadgesDataSourceDelegate::refreshData(CollectionView& collectionView, bool reload) {
  view_ = &collectionView;
  badges = ChallengeData::sharedInstance().completedChallenges;
  if (reload) collectionView.reloadData();
}

const ChallengeRef& BadgesDataSourceDelegate::badgeAt(IndexPath path) const {
  if (path.row < 0 || static_cast<std::size_t>(path.row) >= badges.size()) {
    fatalError("there is no badge " + std::to_string(path.row));
  }
  return badges[static_cast<std::size_t>(path.row)];
}

int BadgesDataSourceDelegate::collectionViewNumberOfItemsInSection(int /*section*/) {
  return static_cast<int>(badges.size());
}

UICollectionViewCellRef BadgesDataSourceDelegate::collectionViewCellForItemAtIndexPath(
    IndexPath path) {
  auto cell =
      std::dynamic_pointer_cast<BadgeCollectionViewCell>(view_->dequeueReusableCell(kBadgeCell));
  cell->setChallenge(badgeAt(path));
  return cell;
}

void BadgesDataSourceDelegate::collectionViewDidSelectItemAtIndexPath(IndexPath /*path*/) {
  parentVC->performSegueWithIdentifier(kShowBadgeDetail);
}

CGSize BadgesDataSourceDelegate::collectionViewLayoutSizeForItemAtIndexPath(
    const UICollectionView& collectionView, IndexPath path) {
  const UIEdgeInsets insets =
      collectionViewLayoutInsetForSectionAtIndex(collectionView, path.section);
  const double spacing =
      collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(collectionView, path.section);
  const double width = collectionView.bounds().size.width - insets.left - insets.right;
  return {std::floor(width / NUM_ITEMS_PER_ROW - spacing * (NUM_ITEMS_PER_ROW - 1) * 0.5),
          kItemHeight};
}

bool BadgesDataSourceDelegate::collectionViewLayoutHasUniformItemSizeInSection(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return true;
}

double BadgesDataSourceDelegate::collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return kSpacing;
}

double BadgesDataSourceDelegate::collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return kSpacing;
}

UIEdgeInsets BadgesDataSourceDelegate::collectionViewLayoutInsetForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return {kSpacing, kSpacing, kSpacing, kSpacing};
}

}  // namespace kindora
