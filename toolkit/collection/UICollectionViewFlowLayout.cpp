// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/UICollectionViewFlowLayout.h"

#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"

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

void UICollectionViewFlowLayout::setScrollDirection(UICollectionViewScrollDirection direction) {
  scrollDirection_ = direction;
  invalidateLayout();
}

CGSize UICollectionViewFlowLayout::turned(CGSize size) const {
  return isHorizontal() ? CGSize{size.height, size.width} : size;
}

CGRect UICollectionViewFlowLayout::turned(const CGRect& rect) const {
  if (!isHorizontal()) return rect;
  return {{rect.origin.y, rect.origin.x}, turned(rect.size)};
}

UIEdgeInsets UICollectionViewFlowLayout::turned(const UIEdgeInsets& insets) const {
  if (!isHorizontal()) return insets;
  return {.top = insets.left, .left = insets.top, .bottom = insets.right, .right = insets.bottom};
}

UICollectionViewLayoutAttributesRef UICollectionViewFlowLayout::makeAttributes(
    IndexPath path, const CGRect& frame) const {
  return std::make_shared<UICollectionViewLayoutAttributes>(path, frame);
}

void UICollectionViewFlowLayout::invalidateLayout() {
  prepared_ = false;
  sections_.clear();
}

void UICollectionViewFlowLayout::prepareLayout() {
  if (collectionView() == nullptr) return;
  const double width = across(collectionView()->bounds().size);
  if (prepared_ && width != preparedAcross_) invalidateLayout();
  if (prepared_) return;
  double top = 0;
  const int count = collectionView()->numberOfSections();
  for (int section = 0; section < count; ++section) {
    sections_.emplace_back(metricsOfSection(section), top);
    top = sections_.back().bottom();
  }
  preparedAcross_ = width;
  prepared_ = true;
}

FlowMetrics UICollectionViewFlowLayout::metricsOfSection(int section) const {
  const UICollectionView& view = *collectionView();
  FlowMetrics metrics{.itemCount = view.numberOfItemsInSection(section),
                      .width = across(view.bounds().size),
                      .interitemSpacing = minimumInteritemSpacing_,
                      .lineSpacing = minimumLineSpacing_,
                      .insets = turned(sectionInset_),
                      .uniformSize = turned(itemSize_)};
  UICollectionViewDelegateFlowLayout* delegate = view.delegate();
  if (delegate == nullptr) return metrics;
  metrics.interitemSpacing =
      delegate->collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(view, section);
  metrics.lineSpacing =
      delegate->collectionViewLayoutMinimumLineSpacingForSectionAtIndex(view, section);
  metrics.insets = turned(delegate->collectionViewLayoutInsetForSectionAtIndex(view, section));
  metrics.uniformSize.reset();
  metrics.sizeOfItem = [this, &view, delegate, section](int item) {
    return turned(delegate->collectionViewLayoutSizeForItemAtIndexPath(view, {section, item}));
  };
  if (metrics.itemCount > 0 &&
      delegate->collectionViewLayoutHasUniformItemSizeInSection(view, section)) {
    metrics.uniformSize = metrics.sizeOfItem(0);
  }
  return metrics;
}

CGSize UICollectionViewFlowLayout::collectionViewContentSize() const {
  return turned(CGSize{preparedAcross_, sections_.empty() ? 0 : sections_.back().bottom()});
}

std::vector<UICollectionViewLayoutAttributesRef>
UICollectionViewFlowLayout::layoutAttributesForElementsInRect(const CGRect& rect) const {
  std::vector<UICollectionViewLayoutAttributesRef> result;
  const CGRect wanted = turned(rect);
  const double bottom = wanted.origin.y + wanted.size.height;
  double top = 0;
  for (int number = 0; number < static_cast<int>(sections_.size()); ++number) {
    if (!(top < bottom)) break;
    const FlowSection& section = sections_[static_cast<std::size_t>(number)];
    section.forEachItemInRect(wanted, [&](int item, const CGRect& frame) {
      result.push_back(makeAttributes({number, item}, turned(frame)));
    });
    top = section.bottom();
  }
  return result;
}

UICollectionViewLayoutAttributesRef UICollectionViewFlowLayout::layoutAttributesForItemAtIndexPath(
    IndexPath path) const {
  if (path.section < 0 || static_cast<std::size_t>(path.section) >= sections_.size()) return {};
  const FlowSection& section = sections_[static_cast<std::size_t>(path.section)];
  if (path.row < 0 || path.row >= section.itemCount()) return {};
  return makeAttributes(path, turned(section.frameOf(path.row)));
}

bool UICollectionViewFlowLayout::shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) {
  return collectionView() != nullptr &&
         across(newBounds.size) != across(collectionView()->bounds().size);
}

}  // namespace kindora
