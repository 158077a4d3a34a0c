// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavActionsCollectionView.h"

#include <algorithm>
#include <utility>

namespace kindora {

QavActionsCollectionView::QavActionsCollectionView(std::shared_ptr<UICollectionViewLayout> layout)
    : BasicCollectionView(std::move(layout)) {}

void QavActionsCollectionView::setDataSource(
    std::weak_ptr<QavActionsCollectionViewDataSource> source) {
  source_ = std::move(source);
  reloadData();
}

void QavActionsCollectionView::setDelegate(
    std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate) {
  delegate_ = std::move(delegate);
  reloadData();
}

void QavActionsCollectionView::reloadData() {
  forgetCells();
  setNeedsLayout();
}

UICollectionViewDelegateFlowLayout* QavActionsCollectionView::delegate() const {
  return delegate_.lock().get();
}

QavActionsCollectionViewDataSource* QavActionsCollectionView::dataSource() const {
  return source_.lock().get();
}

void QavActionsCollectionView::didScroll() { setNeedsLayout(); }

void QavActionsCollectionView::layoutSubviews() {
  UIScrollView::layoutSubviews();
  const CGRect visible{contentOffset(), UIView::bounds().size};
  if (visible != bounds()) takeBounds(visible);
  std::vector<CellRef> views;
  for (const auto& [view, attributes] :
       layOut(CGRectInset(visible, -visible.size.width, -visible.size.height))) {
    view->applyLayoutAttributes(*attributes);
    views.push_back(view);
  }
  setContentSize(layout().collectionViewContentSize());
  bringIntoOrder(views);
}

void QavActionsCollectionView::bringIntoOrder(const std::vector<CellRef>& views) {
  const auto isInPlace = [](const UIViewRef& a, const CellRef& b) { return a == b; };
  if (std::ranges::equal(subviews(), views, isInPlace)) return;
  for (const CellRef& view : views) addSubview(view);
}

}  // namespace kindora
