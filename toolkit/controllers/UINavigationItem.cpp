// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UINavigationItem.h"

#include <utility>

namespace kindora {

UIBarButtonItem::UIBarButtonItem(const QString& title, const QString& imageName, Action action)
    : title_(title), imageName_(imageName), action_(std::move(action)) {}

void UIBarButtonItem::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  emit enabledChanged();
}

void UIBarButtonItem::press() {
  if (enabled_) action_();
}

template <typename Value>
void UINavigationItem::assign(Value& field, const Value& value) {
  if (field == value) return;
  field = value;
  emit changed();
}

void UINavigationItem::setTitle(const QString& title) { assign(title_, title); }
void UINavigationItem::setPrompt(const QString& prompt) { assign(prompt_, prompt); }
void UINavigationItem::setHidesBackButton(bool hides) { assign(hidesBackButton_, hides); }
void UINavigationItem::setLeftBarButtonItem(const UIBarButtonItemRef& item) { assign(left_, item); }
void UINavigationItem::setRightBarButtonItem(const UIBarButtonItemRef& item) {
  assign(right_, item);
}

}  // namespace kindora
