// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertTextFieldTableViewCell.h"

#include <algorithm>
#include <utility>

namespace kindora {

QavAlertTextFieldTableViewCell::QavAlertTextFieldTableViewCell(
    std::shared_ptr<UITextField> field, std::shared_ptr<const QavAlertControllerVisualStyle> style)
    : textField_(std::move(field)), style_(std::move(style)) {}

std::shared_ptr<QavAlertTextFieldTableViewCell> QavAlertTextFieldTableViewCell::withTextField(
    std::shared_ptr<UITextField> field,
    std::shared_ptr<const QavAlertControllerVisualStyle> style) {
  std::shared_ptr<QavAlertTextFieldTableViewCell> cell(
      new QavAlertTextFieldTableViewCell(std::move(field), std::move(style)));
  cell->build();
  return cell;
}

void QavAlertTextFieldTableViewCell::build() {
  const double border = style_->textFieldBorderWidth();
  const UIEdgeInsets margins = style_->textFieldMargins();
  setBackgroundColor(style_->textFieldBorderColor());
  const auto paper = std::make_shared<UIView>();
  paper->setBackgroundColor(UIColor::whiteColor());
  paper->setTranslatesAutoresizingMaskIntoConstraints(false);
  addSubview(paper);
  qav_alignEdgesWithSuperview(paper, UIRectEdge::all,
                              {.top = border, .left = border, .bottom = -border, .right = -border});
  textField_->setTranslatesAutoresizingMaskIntoConstraints(false);
  addSubview(textField_);
  qav_alignEdgesWithSuperview(textField_, UIRectEdge::left | UIRectEdge::right,
                              {.left = border + margins.left, .right = -border - margins.right});
  // In the middle of what the margins leave.
  qav_verticallyCenterInSuperviewWithOffset(textField_, (margins.top - margins.bottom) / 2);
}

double QavAlertTextFieldTableViewCell::requiredHeight() const {
  const UIEdgeInsets margins = style_->textFieldMargins();
  const double around = margins.top + margins.bottom + 2 * style_->textFieldBorderWidth();
  return std::max(around + textField_->intrinsicContentSize().height,
                  style_->estimatedTextFieldHeight());
}

void QavAlertTextFieldTableViewCell::layoutSubviews() {
  UIView::layoutSubviews();
  const auto table = superview();
  if (table && requiredHeight() != frame().size.height) table->setNeedsLayout();
}

}  // namespace kindora
