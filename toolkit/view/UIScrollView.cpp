// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIScrollView.h"

#include <algorithm>

namespace kindora {
namespace {

// The offset at which from..to shows in a window of that length, moved as little as possible.
double offsetShowing(double offset, double length, double from, double to) {
  return std::min(from, std::max(offset, to - length));
}

}  // namespace

void UIScrollView::setContentSize(CGSize size) {
  if (contentSize_ == size) return;
  contentSize_ = size;
  setContentOffset(contentOffset_);
  changed();
}

void UIScrollView::setContentOffset(CGPoint offset) {
  const CGSize size = bounds().size;
  const CGPoint inside{std::clamp(offset.x, 0.0, std::max(0.0, contentSize_.width - size.width)),
                       std::clamp(offset.y, 0.0, std::max(0.0, contentSize_.height - size.height))};
  if (contentOffset_ == inside) return;
  contentOffset_ = inside;
  didScroll();
  changed();
}

void UIScrollView::scrollRectToVisible(const CGRect& rect) {
  const CGSize size = bounds().size;
  setContentOffset(
      {offsetShowing(contentOffset_.x, size.width, rect.origin.x, rect.origin.x + rect.size.width),
       offsetShowing(contentOffset_.y, size.height, rect.origin.y,
                     rect.origin.y + rect.size.height)});
}

void UIScrollView::layoutSubviews() {
  UIView::layoutSubviews();
  setContentOffset(contentOffset_);
}

}  // namespace kindora
