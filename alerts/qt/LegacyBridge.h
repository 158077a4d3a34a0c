// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace kindora {

class QavAlertController;
class QavAlertView;

/// An alert view that shows what the controller holds: button i is action i, whose handler runs
/// when the alert has gone. It has text fields of its own, like the controller's in number and
/// secrecy, takes over the views in the controller's content view, and knows nothing of its veto
/// and of actions that are not enabled.
[[nodiscard]] std::shared_ptr<QavAlertView> alertViewWithAlertController(
    QavAlertController& controller);

}  // namespace kindora
