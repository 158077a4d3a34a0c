// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ScrollViewItem.h"

#include <QQuickWindow>
#include <algorithm>

namespace kindora {
namespace {

constexpr double kMargin = 8;  // points that show around what has the keyboard

}  // namespace

UIScrollView* ScrollViewItem::scrollView() const {
  return dynamic_cast<UIScrollView*>(view().get());
}

QSizeF ScrollViewItem::contentSize() const {
  if (scrollView() == nullptr) return {};
  return {scrollView()->contentSize().width, scrollView()->contentSize().height};
}

QPointF ScrollViewItem::contentOffset() const {
  if (scrollView() == nullptr) return {};
  return {scrollView()->contentOffset().x, scrollView()->contentOffset().y};
}

bool ScrollViewItem::isScrollable() const {
  if (scrollView() == nullptr) return false;
  const CGSize content = scrollView()->contentSize();
  const CGSize size = scrollView()->bounds().size;
  return content.width > size.width || content.height > size.height;
}

void ScrollViewItem::scrolled(double x, double y) {
  if (scrollView() == nullptr) return;
  // What lies beyond the end is only on the screen; it is no offset that the view must take back.
  const CGSize content = scrollView()->contentSize();
  const CGSize size = scrollView()->bounds().size;
  shown_ = {std::clamp(x, 0.0, std::max(0.0, content.width - size.width)),
            std::clamp(y, 0.0, std::max(0.0, content.height - size.height))};
  scrollView()->setContentOffset(shown_);
}

void ScrollViewItem::viewDidChange() {
  FaceItem::viewDidChange();
  if (scrollView() == nullptr || scrollView()->contentOffset() == shown_) return;
  shown_ = scrollView()->contentOffset();
  emit offsetReset();
}

void ScrollViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  FaceItem::geometryChange(now, before);
  if (now.size() != before.size()) revealFocus();
}

void ScrollViewItem::itemChange(ItemChange change, const ItemChangeData& data) {
  FaceItem::itemChange(change, data);
  if (change != ItemSceneChange) return;
  disconnect(focusChanges_);
  if (data.window == nullptr) return;
  focusChanges_ = connect(data.window, &QQuickWindow::activeFocusItemChanged, this,
                          &ScrollViewItem::revealFocus);
}

void ScrollViewItem::revealFocus() {
  const QQuickItem* item = window() != nullptr ? window()->activeFocusItem() : nullptr;
  if (item == nullptr || content_ == nullptr || scrollView() == nullptr) return;
  if (!content_->isAncestorOf(item)) return;
  const QRectF rect = item->mapRectToItem(content_, QRectF(QPointF(), item->size()));
  scrollView()->scrollRectToVisible(
      CGRectInset({{rect.x(), rect.y()}, {rect.width(), rect.height()}}, 0, -kMargin));
}

}  // namespace kindora
