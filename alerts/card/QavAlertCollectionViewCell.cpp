// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertCollectionViewCell.h"

#include <string>
#include <utility>

#include "alerts/helpers/QavAutoLayout.h"

namespace kindora {
namespace {

constexpr double kTitleMargin = 8;  // points beside a long title

}  // namespace

std::shared_ptr<QavAlertCollectionViewCell> QavAlertCollectionViewCell::make() {
  std::shared_ptr<QavAlertCollectionViewCell> cell(new QavAlertCollectionViewCell);
  const std::shared_ptr<UILabel>& label = cell->textLabel_;
  label->setTranslatesAutoresizingMaskIntoConstraints(false);
  label->setTextAlignment(NSTextAlignment::center);
  cell->addSubview(label);
  qav_alignEdgesWithSuperview(label, UIRectEdge::left | UIRectEdge::right,
                              {.left = kTitleMargin, .right = -kTitleMargin});
  qav_verticallyCenterInSuperview(label);
  return cell;
}

void QavAlertCollectionViewCell::updateWithAction(const QavAlertAction& action,
                                                  const QavAlertControllerVisualStyle& style) {
  textLabel_->setFont(style.fontForAction(action));
  textLabel_->setTextColor(style.textColorForAction(action));
  if (action.attributedTitle()) {
    textLabel_->setAttributedText(action.attributedTitle());
  } else {
    textLabel_->setText(action.title());
  }
  setAccessibility(UIAccessibilityRole::button, textLabel_->text().value_or(""));
  setHighlightedBackgroundView(style.actionViewHighlightBackgroundView());
  setEnabled(action.isEnabled());
}

void QavAlertCollectionViewCell::setHighlightedBackgroundView(UIViewRef view) {
  if (highlightedBackgroundView_) highlightedBackgroundView_->removeFromSuperview();
  highlightedBackgroundView_ = std::move(view);
  highlightedBackgroundView_->setTranslatesAutoresizingMaskIntoConstraints(false);
  addSubview(highlightedBackgroundView_);
  addSubview(textLabel_);  // above it again
  qav_alignEdgesWithSuperview(highlightedBackgroundView_, UIRectEdge::all);
  updateHighlight();
}

void QavAlertCollectionViewCell::setGestureRecognizer(
    const std::shared_ptr<UITapGestureRecognizer>& recognizer) {
  if (recognizer) recognizer->enabled = enabled_;
  setTapGestureRecognizer(recognizer);
}

void QavAlertCollectionViewCell::setEnabled(bool enabled) {
  enabled_ = enabled;
  textLabel_->setEnabled(enabled);
  if (gestureRecognizer()) gestureRecognizer()->enabled = enabled;
  updateHighlight();
  changed();
}

void QavAlertCollectionViewCell::setHighlighted(bool highlighted, bool animated) {
  QavCollectionReusableView::setHighlighted(highlighted, animated);
  updateHighlight();
}

void QavAlertCollectionViewCell::updateHighlight() {
  if (!highlightedBackgroundView_) return;
  highlightedBackgroundView_->setHidden(!isHighlighted() || !enabled_);
}

void QavAlertCollectionViewCell::prepareForReuse() {
  QavCollectionReusableView::prepareForReuse();
  setGestureRecognizer(nullptr);
}

}  // namespace kindora
