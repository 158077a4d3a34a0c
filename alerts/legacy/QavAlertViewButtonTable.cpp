// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewButtonTable.h"

namespace kindora {

void QavAlertViewButtonTable::setTitles(const std::vector<std::string>& titles) {
  for (const RowRef& row : rows_) row->removeFromSuperview();
  rows_.clear();
  for (const std::string& title : titles) {
    const RowRef& row = rows_.emplace_back(QavAlertViewButtonRow::withTitle(title));
    const int index = static_cast<int>(rows_.size()) - 1;
    row->tapped = [weak = weak_from_this(), index] {
      const auto table = std::static_pointer_cast<QavAlertViewButtonTable>(weak.lock());
      if (table && table->rowTapped) table->rowTapped(index);
    };
    addSubview(row);
  }
  setNeedsLayout();
}

void QavAlertViewButtonTable::layoutSubviews() {
  UIView::layoutSubviews();
  const double width = bounds().size.width;
  double top = 0;
  for (const RowRef& row : rows_) {
    row->setFrame({{0, top}, {width, kRowHeight}});
    top += kRowHeight;
  }
}

}  // namespace kindora
