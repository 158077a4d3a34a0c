// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UISearchBar.h"

#include "toolkit/controllers/Colors.h"

namespace kindora {

void UISearchBar::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  emit textChanged();
}

void UISearchBar::setFrame(CGRect frame) {
  frame_ = frame;
  emit lookChanged();
}

void UISearchBar::setBackgroundColor(const UIColor& color) {
  backgroundColor_ = color;
  emit lookChanged();
}

void UISearchBar::setShowsCancelButton(bool shows) {
  if (showsCancelButton_ == shows) return;
  showsCancelButton_ = shows;
  emit showsCancelButtonChanged();
}

void UISearchBar::edit(const QString& text) {
  if (text_ == text) return;
  setText(text);
  emit edited();
}

void UISearchBar::setFirstResponder(bool first) {
  if (first) {
    enterResponderChain();
  } else {
    leaveResponderChain();
  }
}

QColor UISearchBar::background() const { return toQColor(backgroundColor_); }

}  // namespace kindora
