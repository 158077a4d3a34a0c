// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavIntrinsicallySizedView.h"

#include <algorithm>
#include <limits>

namespace kindora {

CGSize QavIntrinsicallySizedView::intrinsicContentSize() const {
  constexpr double kLargest = std::numeric_limits<double>::max();
  // Not the lowest number: right and bottom edges never count as less than (almost) 0.
  constexpr double kSmallest = std::numeric_limits<double>::min();
  double minX = kLargest;
  double minY = kLargest;
  double maxX = kSmallest;
  double maxY = kSmallest;
  for (const auto& subview : subviews()) {
    if (dynamic_cast<const UILayoutSupport*>(subview.get()) != nullptr) continue;
    const CGPoint center = subview->center();
    const CGSize size = subview->bounds().size;
    minX = std::min(minX, center.x - size.width / 2);
    minY = std::min(minY, center.y - size.height / 2);
    maxX = std::max(maxX, center.x + size.width / 2);
    maxY = std::max(maxY, center.y + size.height / 2);
  }
  if (minX == kLargest) return UIView::intrinsicContentSize();
  return {maxX - minX, maxY - minY};
}

void QavIntrinsicallySizedView::layoutSubviews() {
  UIView::layoutSubviews();
  invalidateIntrinsicContentSize();
}

}  // namespace kindora
