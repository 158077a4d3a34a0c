// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The part of an alert that has to do with its look.
#include "alerts/legacy/QavAlertView.h"

namespace kindora {

template <typename Change>
void QavAlertView::changeAppearance(Change change) {
  QavAlertViewAppearance changed = ownAppearance();
  change(changed);
  alertContentView_->setAppearance(changed);
}

void QavAlertView::setTitleLabelFont(const UIFont& font) {
  if (attributedTitle() && attributedTitle()->hasFont()) return;
  changeAppearance([&](QavAlertViewAppearance& look) { look.titleLabelFont = font; });
}

void QavAlertView::setTitleLabelTextColor(const UIColor& color) {
  if (attributedTitle() && attributedTitle()->hasForegroundColor()) return;
  changeAppearance([&](QavAlertViewAppearance& look) { look.titleLabelTextColor = color; });
}

void QavAlertView::setMessageLabelFont(const UIFont& font) {
  if (attributedMessage() && attributedMessage()->hasFont()) return;
  changeAppearance([&](QavAlertViewAppearance& look) { look.messageLabelFont = font; });
}

void QavAlertView::setMessageLabelTextColor(const UIColor& color) {
  if (attributedMessage() && attributedMessage()->hasForegroundColor()) return;
  changeAppearance([&](QavAlertViewAppearance& look) { look.messageLabelTextColor = color; });
}

void QavAlertView::setTextFieldFont(const UIFont& font) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.textFieldFont = font; });
}

void QavAlertView::setTextFieldTextColor(const UIColor& color) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.textFieldTextColor = color; });
}

void QavAlertView::setSuggestedButtonFont(const UIFont& font) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.suggestedButtonFont = font; });
}

void QavAlertView::setNormalButtonFont(const UIFont& font) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.normalButtonFont = font; });
}

void QavAlertView::setButtonTextColor(const UIColor& color) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.buttonTextColor = color; });
}

void QavAlertView::setContentPadding(UIEdgeInsets padding) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.contentPadding = padding; });
}

void QavAlertView::setLabelSpacing(double spacing) {
  changeAppearance([&](QavAlertViewAppearance& look) { look.labelSpacing = spacing; });
}

}  // namespace kindora
