// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Shorter ways to make an alert.
#include "alerts/legacy/QavAlertView.h"

namespace kindora {

std::shared_ptr<QavAlertView> QavAlertView::alertWithTitleMessage(const Text& title,
                                                                  const Text& message) {
  return alertWithTitleMessageSubviewButtons(title, message, nullptr, {});
}

std::shared_ptr<QavAlertView> QavAlertView::alertWithTitleMessageButtons(const Text& title,
                                                                         const Text& message,
                                                                         const Titles& buttons) {
  return alertWithTitleMessageSubviewButtons(title, message, nullptr, buttons);
}

std::shared_ptr<QavAlertView> QavAlertView::alertWithSubview(const UIViewRef& subview) {
  return alertWithTitleMessageSubviewButtons(std::nullopt, std::nullopt, subview, {});
}

std::shared_ptr<QavAlertView> QavAlertView::alertWithTitleSubview(const Text& title,
                                                                  const UIViewRef& subview) {
  return alertWithTitleMessageSubviewButtons(title, std::nullopt, subview, {});
}

std::shared_ptr<QavAlertView> QavAlertView::alertWithTitleMessageSubview(const Text& title,
                                                                         const Text& message,
                                                                         const UIViewRef& subview) {
  return alertWithTitleMessageSubviewButtons(title, message, subview, {});
}

std::shared_ptr<QavAlertView> QavAlertView::alertWithTitleMessageSubviewButtons(
    const Text& title, const Text& message, const UIViewRef& subview, const Titles& buttons) {
  const bool hasButtons = !buttons.empty();
  auto alert = initWithTitle(title, message, {}, hasButtons ? Text(buttons.front()) : std::nullopt,
                             hasButtons ? Titles(buttons.begin() + 1, buttons.end()) : Titles{});
  if (subview) alert->contentView()->addSubview(subview);
  return alert;
}

}  // namespace kindora
