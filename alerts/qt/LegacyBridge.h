// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/QavAlertContent.h"

namespace kindora {

/// An alert view that shows the content: button i is action i, whose handler runs when the alert
/// has gone. It has text fields of its own, like the content's in number and secrecy, takes over
/// the caller's views, and knows nothing of actions that are not enabled.
[[nodiscard]] std::shared_ptr<QavAlertView> alertViewWithContent(
    const QavAlertContent& content, std::weak_ptr<QavAlertViewDelegate> delegate);

}  // namespace kindora
