// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/grid/SpringyGridViewController.h"

#include <algorithm>
#include <cmath>

#include "gallery/grid/ColorCell.h"

namespace kindora {
namespace {

constexpr std::string_view kColorCell = "colorCell";
constexpr double kSpacing = 8;      // points, between cells
constexpr double kCellMargin = 16;  // points, around them
constexpr double kLeastSide = 80;
constexpr double kLeastPerRow = 3;
constexpr int kCellsPerRound = 120;  // of the colours

QColor colorOf(int index) {
  const float hue = static_cast<float>(index % kCellsPerRound) / kCellsPerRound;
  return QColor::fromHsvF(hue, 0.5F, 0.95F);
}

}  // namespace

SpringyGridViewController::SpringyGridViewController()
    : layout(std::make_unique<BelSpringyCollectionViewFlowLayout>()),
      collectionView(std::make_unique<CollectionView>(*layout)) {
  setTitle(QStringLiteral("Springy grid"));
  collectionView->registerCell(kColorCell, ColorCell::fromPrototype);
}

void SpringyGridViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  collectionView->setDataSource(this);
  collectionView->setDelegate(this);
}

UICollectionViewCellRef SpringyGridViewController::collectionViewCellForItemAtIndexPath(
    IndexPath path) {
  auto cell = std::dynamic_pointer_cast<ColorCell>(collectionView->dequeueReusableCell(kColorCell));
  cell->setNumberAndColor(path.row + 1, colorOf(path.row));
  return cell;
}

void SpringyGridViewController::collectionViewDidSelectItemAtIndexPath(IndexPath path) {
  const QString caption = QStringLiteral("Cell %1 was pressed").arg(path.row + 1);
  if (caption == caption_) return;
  caption_ = caption;
  emit captionChanged();
}

CGSize SpringyGridViewController::collectionViewLayoutSizeForItemAtIndexPath(
    const UICollectionView& view, IndexPath /*path*/) {
  const double width = view.bounds().size.width - 2 * kCellMargin;
  const double perRow =
      std::max(kLeastPerRow, std::floor((width + kSpacing) / (kLeastSide + kSpacing)));
  const double side = std::max(1.0, std::floor((width + kSpacing) / perRow - kSpacing));
  return {side, side};
}

bool SpringyGridViewController::collectionViewLayoutHasUniformItemSizeInSection(
    const UICollectionView& /*view*/, int /*section*/) {
  return true;
}

double SpringyGridViewController::collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
    const UICollectionView& /*view*/, int /*section*/) {
  return kSpacing;
}

double SpringyGridViewController::collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
    const UICollectionView& /*view*/, int /*section*/) {
  return kSpacing;
}

UIEdgeInsets SpringyGridViewController::collectionViewLayoutInsetForSectionAtIndex(
    const UICollectionView& /*view*/, int /*section*/) {
  return {kCellMargin, kCellMargin, kCellMargin, kCellMargin};
}

}  // namespace kindora
