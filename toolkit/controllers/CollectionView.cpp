// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/CollectionView.h"

#include <QQmlEngine>

#include "toolkit/collection/NearSight.h"

namespace kindora {
namespace {

// Somebody else's.
std::shared_ptr<UICollectionViewLayout> borrowed(UICollectionViewLayout& layout) {
  return {std::shared_ptr<void>(), &layout};
}

}  // namespace

CollectionView::CollectionView(UICollectionViewLayout& layout)
    : BasicCollectionView(borrowed(layout)) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void CollectionView::reloadData() {
  forgetCells();
  showCells();
}

void CollectionView::setFrame(CGRect frame) {
  if (frame_ == frame) return;
  takeBounds({bounds().origin, frame.size});
  frame_ = frame;
  showCells();
}

void CollectionView::setContentOffset(CGPoint offset) {
  if (bounds().origin == offset) return;
  takeBounds({offset, bounds().size});
  showCells();
}

void CollectionView::advance(double seconds) {
  if (layout().advance(seconds)) showCells();
}

void CollectionView::settle() {
  layout().invalidateLayout();
  showCells();
}

void CollectionView::showCells() {
  const auto placed = layOut(nearSight(bounds()));
  shown_.clear();
  for (const auto& [cell, attributes] : placed) {
    if (attributes->decorationKind()) continue;
    shown_[attributes->indexPath()] = {cell, attributes->frame()};
  }
  emit changed();
}

}  // namespace kindora
