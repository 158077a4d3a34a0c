// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertTextFieldTableView.h"

#include <utility>

namespace kindora {

QavAlertTextFieldTableView::QavAlertTextFieldTableView(TextFields fields)
    : textFields_(std::move(fields)) {}

std::shared_ptr<QavAlertTextFieldTableView> QavAlertTextFieldTableView::withTextFields(
    TextFields fields, const std::shared_ptr<const QavAlertControllerVisualStyle>& style) {
  std::shared_ptr<QavAlertTextFieldTableView> table(
      new QavAlertTextFieldTableView(std::move(fields)));
  for (const auto& field : table->textFields_) {
    table->cells_.push_back(QavAlertTextFieldTableViewCell::withTextField(field, style));
    table->addSubview(table->cells_.back());
  }
  return table;
}

double QavAlertTextFieldTableView::requiredHeight() const {
  double sum = 0;
  for (const auto& cell : cells_) sum += cell->requiredHeight();
  return sum;
}

void QavAlertTextFieldTableView::layoutSubviews() {
  UIView::layoutSubviews();
  double top = 0;
  for (const auto& cell : cells_) {
    const double height = cell->requiredHeight();
    cell->setFrame({{0, top}, {frame().size.width, height}});
    top += height;
  }
  // Whoever holds the table gives it its height.
  const auto holder = superview();
  if (std::exchange(placedHeight_, top) != top && holder) holder->setNeedsLayout();
}

}  // namespace kindora
