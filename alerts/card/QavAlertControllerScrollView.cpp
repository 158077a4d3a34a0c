// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerScrollView.h"

#include <utility>

namespace kindora {
namespace {

double bottomOf(const UIView& view) { return view.frame().origin.y + view.frame().size.height; }

}  // namespace

std::shared_ptr<QavAlertControllerScrollView> QavAlertControllerScrollView::withVisualStyle(
    std::shared_ptr<const QavAlertControllerVisualStyle> style) {
  std::shared_ptr<QavAlertControllerScrollView> view(new QavAlertControllerScrollView);
  for (const auto& label : {view->titleLabel_, view->messageLabel_}) {
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    view->addSubview(label);
  }
  view->setVisualStyle(std::move(style));
  return view;
}

void QavAlertControllerScrollView::setTextFieldView(
    std::shared_ptr<QavAlertTextFieldTableView> view) {
  if (textFieldView_) textFieldView_->removeFromSuperview();
  textFieldView_ = std::move(view);
  if (textFieldView_) {
    textFieldView_->setTranslatesAutoresizingMaskIntoConstraints(false);
    addSubview(textFieldView_);
  }
  constrainContent();
}

void QavAlertControllerScrollView::setVisualStyle(
    std::shared_ptr<const QavAlertControllerVisualStyle> style) {
  visualStyle_ = std::move(style);
  titleLabel_->setFont(visualStyle_->titleLabelFont());
  messageLabel_->setFont(visualStyle_->messageLabelFont());
  constrainContent();
}

void QavAlertControllerScrollView::constrainContent() {
  for (const auto& constraint : std::exchange(contentConstraints_, {})) {
    if (const auto owner = constraint->owner()) owner->removeConstraint(constraint);
  }
  textFieldsHeightConstraint_.reset();
  const UIViewRef self = shared_from_this();
  const UIEdgeInsets padding = visualStyle_->contentPadding();
  contentConstraints_ = {
      qav_alignEdge(titleLabel_, UIRectEdge::left, self, padding.left),
      qav_pinWidthToWidthOfView(titleLabel_, self, -(padding.left + padding.right)),
  };
  hold({.firstItem = titleLabel_,
        .firstAttribute = NSLayoutAttribute::firstBaseline,
        .secondItem = self,
        .secondAttribute = NSLayoutAttribute::top,
        .constant = padding.top});
  hold({.firstItem = messageLabel_,
        .firstAttribute = NSLayoutAttribute::firstBaseline,
        .secondItem = titleLabel_,
        .secondAttribute = NSLayoutAttribute::baseline,
        .constant = visualStyle_->labelSpacing()});
  alignSidesWithTitle(messageLabel_);
  if (textFieldView_) constrainTextFields();
  setNeedsLayout();
}

void QavAlertControllerScrollView::constrainTextFields() {
  textFieldsHeightConstraint_ = qav_pinHeight(textFieldView_, textFieldsHeight());
  contentConstraints_.push_back(textFieldsHeightConstraint_);
  hold({.firstItem = textFieldView_,
        .firstAttribute = NSLayoutAttribute::top,
        .secondItem = messageLabel_,
        .secondAttribute = NSLayoutAttribute::baseline,
        .constant = visualStyle_->messageLabelBottomSpacing()});
  alignSidesWithTitle(textFieldView_);
}

void QavAlertControllerScrollView::hold(NSLayoutConstraint::Parts parts) {
  contentConstraints_.push_back(std::make_shared<NSLayoutConstraint>(std::move(parts)));
  addConstraint(contentConstraints_.back());
}

void QavAlertControllerScrollView::alignSidesWithTitle(const UIViewRef& view) {
  const auto sides = qav_alignEdges(view, UIRectEdge::left | UIRectEdge::right, titleLabel_);
  contentConstraints_.insert(contentConstraints_.end(), sides.begin(), sides.end());
}

double QavAlertControllerScrollView::textFieldsHeight() const {
  return textFieldView_->requiredHeight() + visualStyle_->contentPadding().bottom;
}

CGSize QavAlertControllerScrollView::intrinsicContentSize() const {
  const double height = textFieldView_
                            ? bottomOf(*textFieldView_)
                            : bottomOf(*messageLabel_) + visualStyle_->messageLabelBottomSpacing();
  return {kNoIntrinsicMetric, height};
}

void QavAlertControllerScrollView::layoutSubviews() {
  if (textFieldsHeightConstraint_) textFieldsHeightConstraint_->setConstant(textFieldsHeight());
  setContentSize({frame().size.width, intrinsicContentSize().height});
  UIScrollView::layoutSubviews();
  invalidateIntrinsicContentSize();
}

}  // namespace kindora
