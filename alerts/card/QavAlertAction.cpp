// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertAction.h"

#include <utility>

namespace kindora {

QavAlertAction::QavAlertAction(QavAlertActionStyle style, Handler handler)
    : style_(style), handler_(std::move(handler)) {}

QavAlertActionRef QavAlertAction::actionWithTitle(const std::optional<std::string>& title,
                                                  QavAlertActionStyle style, Handler handler) {
  QavAlertActionRef action(new QavAlertAction(style, std::move(handler)));
  action->title_ = title;
  return action;
}

QavAlertActionRef QavAlertAction::actionWithAttributedTitle(
    const std::optional<NSAttributedString>& attributedTitle, QavAlertActionStyle style,
    Handler handler) {
  QavAlertActionRef action(new QavAlertAction(style, std::move(handler)));
  action->attributedTitle_ = attributedTitle;
  return action;
}

QavAlertActionRef QavAlertAction::copy() const { return actionWithTitle(title_, style_, handler_); }

void QavAlertAction::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  const QavAlertActionRef self = shared_from_this();  // an observer may let go of it
  observers_.notify(*this);
}

}  // namespace kindora
