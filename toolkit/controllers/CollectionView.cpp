// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/CollectionView.h"

#include <QQmlEngine>
#include <ranges>
#include <utility>

namespace kindora {
namespace {

constexpr double kMargin = 100;  // points around the visible part in which there are cells

}  // namespace

CollectionView::CollectionView(UICollectionViewLayout& layout) : layout_(layout) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  layout_.setCollectionView(this);
}

CollectionView::~CollectionView() { layout_.setCollectionView(nullptr); }

void CollectionView::setDataSource(UICollectionViewDataSource* source) { source_ = source; }

int CollectionView::numberOfSections() const {
  return source_ != nullptr ? source_->numberOfSectionsInCollectionView() : 0;
}

int CollectionView::numberOfItemsInSection(int section) const {
  return source_ != nullptr ? source_->collectionViewNumberOfItemsInSection(section) : 0;
}

void CollectionView::reloadData() {
  selected_.clear();
  // From the last to the first, so that each place gets its own cell again, and keeps the focus.
  for (auto& [path, shown] : std::views::reverse(shown_)) cells_.recycle(std::move(shown.cell));
  shown_.clear();
  layout_.invalidateLayout();
  layOut();
}

void CollectionView::setFrame(CGRect frame) {
  if (frame_ == frame) return;
  const CGRect bounds{bounds_.origin, frame.size};
  const bool invalidates = layout_.shouldInvalidateLayoutForBoundsChange(bounds);
  frame_ = frame;
  bounds_ = bounds;
  if (invalidates) layout_.invalidateLayout();
  layOut();
}

void CollectionView::setContentOffset(CGPoint offset) {
  if (bounds_.origin == offset) return;
  const CGRect bounds{offset, bounds_.size};
  const bool invalidates = layout_.shouldInvalidateLayoutForBoundsChange(bounds);
  bounds_ = bounds;
  if (invalidates) layout_.invalidateLayout();
  layOut();
}

void CollectionView::select(IndexPath path) {
  if (source_ == nullptr || !shown_.contains(path)) return;
  selected_ = {path};
  source_->collectionViewDidSelectItemAtIndexPath(path);
}

void CollectionView::advance(double seconds) {
  if (layout_.advance(seconds)) layOut();
}

void CollectionView::layOut() {
  layout_.prepareLayout();
  std::map<IndexPath, Shown> before = std::exchange(shown_, {});
  const CGRect near = CGRectInset(bounds_, -kMargin, -kMargin);
  std::vector<UICollectionViewLayoutAttributesRef> arriving;
  for (const auto& attributes : layout_.layoutAttributesForElementsInRect(near)) {
    if (attributes->decorationKind()) continue;  // only cells are shown here
    auto known = before.extract(attributes->indexPath());
    if (known.empty()) {
      arriving.push_back(attributes);
      continue;
    }
    known.mapped().frame = attributes->frame();
    shown_.insert(std::move(known));
  }
  // First what has left, so that its cells can be used for what arrives.
  for (auto& [path, shown] : before) cells_.recycle(std::move(shown.cell));
  for (const auto& attributes : arriving) {
    shown_[attributes->indexPath()] = {
        source_->collectionViewCellForItemAtIndexPath(attributes->indexPath()),
        attributes->frame()};
  }
  emit changed();
}

}  // namespace kindora
