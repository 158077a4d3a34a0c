// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavActionsCollectionView.h"

#include <algorithm>

#include "platform/FatalError.h"

namespace kindora {

QavActionsCollectionView::QavActionsCollectionView(std::shared_ptr<UICollectionViewLayout> layout)
    : layout_(std::move(layout)) {
  layout_->setCollectionView(this);
}

QavActionsCollectionView::~QavActionsCollectionView() { layout_->setCollectionView(nullptr); }

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

// --- Cells ---

void QavActionsCollectionView::registerCell(const std::string& reuseIdentifier, ViewMaker maker) {
  makers_[reuseIdentifier] = std::move(maker);
}

void QavActionsCollectionView::registerDecorationView(const std::string& kind, ViewMaker maker) {
  makers_[kind] = std::move(maker);
}

QavActionsCollectionView::ViewRef QavActionsCollectionView::dequeueReusableCell(
    const std::string& reuseIdentifier) {
  return dequeue(reuseIdentifier);
}

QavActionsCollectionView::ViewRef QavActionsCollectionView::dequeue(const std::string& identifier) {
  std::vector<ViewRef>& unused = unused_[identifier];
  if (!unused.empty()) {
    ViewRef view = std::move(unused.back());
    unused.pop_back();
    return view;
  }
  const auto maker = makers_.find(identifier);
  if (maker == makers_.end()) fatalError("no view is registered for " + identifier);
  ViewRef view = maker->second();
  view->reuseIdentifier_ = identifier;
  return view;
}

void QavActionsCollectionView::recycle(const ViewRef& view) {
  view->removeFromSuperview();
  view->prepareForReuse();
  unused_[view->reuseIdentifier()].push_back(view);
}

void QavActionsCollectionView::reloadData() {
  // From the last to the first, so that each place gets its own view again, and keeps the focus.
  for (auto it = shown_.rbegin(); it != shown_.rend(); ++it) recycle(it->second);
  shown_.clear();
  layout_->invalidateLayout();
  setNeedsLayout();
}

QavActionsCollectionView::ViewRef QavActionsCollectionView::cellForItemAtIndexPath(
    IndexPath path) const {
  const auto found = shown_.find(Key(path, ""));
  return found != shown_.end() ? found->second : nullptr;
}

std::optional<IndexPath> QavActionsCollectionView::indexPathForCell(const UIView& cell) const {
  for (const auto& [key, view] : shown_) {
    if (view.get() == &cell && key.second.empty()) return key.first;
  }
  return std::nullopt;
}

// --- What the layout asks ---

int QavActionsCollectionView::numberOfSections() const {
  const auto source = source_.lock();
  return source ? source->numberOfSectionsInCollectionView(*this) : 0;
}

int QavActionsCollectionView::numberOfItemsInSection(int section) const {
  const auto source = source_.lock();
  return source ? source->collectionViewNumberOfItemsInSection(*this, section) : 0;
}

UICollectionViewDelegateFlowLayout* QavActionsCollectionView::delegate() const {
  return delegate_.lock().get();
}

// --- Layout ---

void QavActionsCollectionView::didScroll() { setNeedsLayout(); }

void QavActionsCollectionView::layoutSubviews() {
  UIScrollView::layoutSubviews();
  takeBounds();
  layOut();
}

QavActionsCollectionView::Key QavActionsCollectionView::keyOf(
    const UICollectionViewLayoutAttributes& attributes) {
  return {attributes.indexPath(), attributes.decorationKind().value_or("")};
}

void QavActionsCollectionView::takeBounds() {
  const CGRect now{contentOffset(), UIView::bounds().size};
  if (now == bounds_) return;
  const bool invalidates = layout_->shouldInvalidateLayoutForBoundsChange(now);
  bounds_ = now;
  if (invalidates) layout_->invalidateLayout();
}

void QavActionsCollectionView::layOut() {
  layout_->prepareLayout();
  setContentSize(layout_->collectionViewContentSize());
  const CGRect near = CGRectInset(bounds_, -bounds_.size.width, -bounds_.size.height);
  auto elements = layout_->layoutAttributesForElementsInRect(near);
  std::ranges::stable_sort(elements, {}, [](const auto& element) { return element->zIndex(); });

  std::map<Key, ViewRef> before = std::exchange(shown_, {});
  for (const auto& element : elements) {
    auto known = before.extract(keyOf(*element));
    if (!known.empty()) shown_.insert(std::move(known));
  }
  // First what has left, so that it can be used for what arrives.
  for (const auto& [key, view] : before) recycle(view);
  std::vector<ViewRef> views;
  for (const auto& element : elements) {
    ViewRef& view = shown_[keyOf(*element)];
    if (!view) view = makeView(*element);
    view->applyLayoutAttributes(*element);
    views.push_back(view);
  }
  bringIntoOrder(views);
}

QavActionsCollectionView::ViewRef QavActionsCollectionView::makeView(
    const UICollectionViewLayoutAttributes& attributes) {
  if (attributes.decorationKind()) return dequeue(*attributes.decorationKind());
  return source_.lock()->collectionViewCellForItemAtIndexPath(*this, attributes.indexPath());
}

void QavActionsCollectionView::bringIntoOrder(const std::vector<ViewRef>& views) {
  const auto isInPlace = [](const std::shared_ptr<UIView>& a, const ViewRef& b) { return a == b; };
  if (std::ranges::equal(subviews(), views, isInPlace)) return;
  for (const ViewRef& view : views) addSubview(view);
}

}  // namespace kindora
