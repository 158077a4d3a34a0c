// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerScrollView.h"

#include <initializer_list>
#include <utility>

namespace kindora {
namespace {

double bottomOf(const UIView& view) { return view.frame().origin.y + view.frame().size.height; }

NSLayoutConstraintRef below(const UIViewRef& owner, const UIViewRef& view,
                            NSLayoutAttribute attribute, const UIViewRef& other,
                            NSLayoutAttribute otherAttribute, double distance) {
  auto constraint = std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = view,
                                .firstAttribute = attribute,
                                .secondItem = other,
                                .secondAttribute = otherAttribute,
                                .constant = distance});
  owner->addConstraint(constraint);
  return constraint;
}

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
      below(self, titleLabel_, NSLayoutAttribute::firstBaseline, self, NSLayoutAttribute::top,
            padding.top),
      below(self, messageLabel_, NSLayoutAttribute::firstBaseline, titleLabel_,
            NSLayoutAttribute::baseline, visualStyle_->labelSpacing()),
  };
  const auto sides =
      qav_alignEdges(messageLabel_, UIRectEdge::left | UIRectEdge::right, titleLabel_);
  contentConstraints_.insert(contentConstraints_.end(), sides.begin(), sides.end());
  if (textFieldView_) constrainTextFields(self);
  setNeedsLayout();
}

void QavAlertControllerScrollView::constrainTextFields(const UIViewRef& self) {
  textFieldsHeightConstraint_ = qav_pinHeight(textFieldView_, textFieldsHeight());
  contentConstraints_.push_back(textFieldsHeightConstraint_);
  contentConstraints_.push_back(below(self, textFieldView_, NSLayoutAttribute::top, messageLabel_,
                                      NSLayoutAttribute::baseline,
                                      visualStyle_->messageLabelBottomSpacing()));
  const auto sides =
      qav_alignEdges(textFieldView_, UIRectEdge::left | UIRectEdge::right, titleLabel_);
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
