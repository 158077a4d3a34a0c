// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/UICollectionViewFlowLayout.h"

#include "effects/springy/UICollectionViewDelegateFlowLayout.h"

namespace kindora {

void UICollectionViewFlowLayout::setMinimumInteritemSpacing(double points) {
  minimumInteritemSpacing_ = points;
  invalidateLayout();
}

void UICollectionViewFlowLayout::setMinimumLineSpacing(double points) {
  minimumLineSpacing_ = points;
  invalidateLayout();
}

void UICollectionViewFlowLayout::setItemSize(CGSize size) {
  itemSize_ = size;
  invalidateLayout();
}

void UICollectionViewFlowLayout::setSectionInset(UIEdgeInsets insets) {
  sectionInset_ = insets;
  invalidateLayout();
}

void UICollectionViewFlowLayout::invalidateLayout() {
  prepared_ = false;
  sections_.clear();
}

void UICollectionViewFlowLayout::prepareLayout() {
  if (collectionView() == nullptr) return;
  const double width = collectionView()->bounds().size.width;
  if (prepared_ && width != preparedWidth_) invalidateLayout();
  if (prepared_) return;
  double top = 0;
  const int count = collectionView()->numberOfSections();
  for (int section = 0; section < count; ++section) {
    sections_.emplace_back(metricsOfSection(section), top);
    top = sections_.back().bottom();
  }
  preparedWidth_ = width;
  prepared_ = true;
}

FlowMetrics UICollectionViewFlowLayout::metricsOfSection(int section) const {
  const UICollectionView& view = *collectionView();
  FlowMetrics metrics{.section = section,
                      .itemCount = view.numberOfItemsInSection(section),
                      .width = view.bounds().size.width,
                      .interitemSpacing = minimumInteritemSpacing_,
                      .lineSpacing = minimumLineSpacing_,
                      .insets = sectionInset_,
                      .uniformSize = itemSize_};
  UICollectionViewDelegateFlowLayout* delegate = view.delegate();
  if (delegate == nullptr) return metrics;
  metrics.interitemSpacing =
      delegate->collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(view, section);
  metrics.lineSpacing =
      delegate->collectionViewLayoutMinimumLineSpacingForSectionAtIndex(view, section);
  metrics.insets = delegate->collectionViewLayoutInsetForSectionAtIndex(view, section);
  metrics.uniformSize.reset();
  metrics.sizeOfItem = [&view, delegate, section](int item) {
    return delegate->collectionViewLayoutSizeForItemAtIndexPath(view, {section, item});
  };
  if (metrics.itemCount > 0 &&
      delegate->collectionViewLayoutHasUniformItemSizeInSection(view, section)) {
    metrics.uniformSize = metrics.sizeOfItem(0);
  }
  return metrics;
}

CGSize UICollectionViewFlowLayout::collectionViewContentSize() const {
  return {preparedWidth_, sections_.empty() ? 0 : sections_.back().bottom()};
}

std::vector<UICollectionViewLayoutAttributesRef>
UICollectionViewFlowLayout::layoutAttributesForElementsInRect(const CGRect& rect) const {
  std::vector<UICollectionViewLayoutAttributesRef> result;
  const double bottom = rect.origin.y + rect.size.height;
  double top = 0;
  for (const FlowSection& section : sections_) {
    if (!(top < bottom)) break;
    section.appendAttributesInRect(rect, result);
    top = section.bottom();
  }
  return result;
}

UICollectionViewLayoutAttributesRef UICollectionViewFlowLayout::layoutAttributesForItemAtIndexPath(
    IndexPath path) const {
  if (path.section < 0 || static_cast<std::size_t>(path.section) >= sections_.size()) return {};
  const FlowSection& section = sections_[static_cast<std::size_t>(path.section)];
  if (path.row < 0 || path.row >= section.itemCount()) return {};
  return section.attributesOf(path.row);
}

bool UICollectionViewFlowLayout::shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) {
  return collectionView() != nullptr &&
         newBounds.size.width != collectionView()->bounds().size.width;
}

}  // namespace kindora
