// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/LegacyBridge.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kindora {
namespace {

// So that button i is always action i, an action without any title has a button without text.
std::string buttonTitle(const QavAlertAction& action) {
  if (action.title()) return *action.title();
  return action.attributedTitle() ? action.attributedTitle()->string() : "";
}

QavAlertViewStyle styleFor(const std::vector<std::shared_ptr<UITextField>>& fields) {
  if (fields.empty()) return QavAlertViewStyle::standard;
  if (fields.size() > 1) return QavAlertViewStyle::loginAndPasswordInput;
  return fields.front()->isSecureTextEntry() ? QavAlertViewStyle::secureTextInput
                                             : QavAlertViewStyle::plainTextInput;
}

}  // namespace

std::shared_ptr<QavAlertView> alertViewWithContent(const QavAlertContent& content,
                                                   std::weak_ptr<QavAlertViewDelegate> delegate) {
  const std::vector<QavAlertActionRef>& actions = content.actions;
  const std::optional<std::string> cancelTitle =
      actions.empty() ? std::nullopt : std::optional(buttonTitle(*actions.front()));
  auto alertView = QavAlertView::initWithTitle(content.title, content.message, std::move(delegate),
                                               cancelTitle, {});
  for (std::size_t i = 1; i < actions.size(); ++i) {
    alertView->addButtonWithTitle(buttonTitle(*actions[i]));
  }
  if (content.attributedTitle) alertView->setAttributedTitle(content.attributedTitle);
  if (content.attributedMessage) alertView->setAttributedMessage(content.attributedMessage);
  alertView->setAlertViewStyle(styleFor(content.textFields));
  const auto subviews = content.view->subviews();  // they leave it on the way
  for (const auto& subview : subviews) alertView->contentView()->addSubview(subview);
  alertView->setAlwaysShowsButtonsVertically(content.actionLayout ==
                                             QavAlertActionLayout::vertical);
  alertView->didDismissHandler = [actions](int buttonIndex) {
    if (buttonIndex < 0 || static_cast<std::size_t>(buttonIndex) >= actions.size()) return;
    QavAlertAction& action = *actions[static_cast<std::size_t>(buttonIndex)];
    if (action.handler()) action.handler()(action);
  };
  return alertView;
}

}  // namespace kindora
