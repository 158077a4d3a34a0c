// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "alerts/legacy/QavAlertUserWindow.h"
#include "alerts/legacy/QavAlertWindow.h"

namespace kindora {

/// Where a coordinator finds its windows.
struct QavAlertEnvironment {
  /// The app's key window; null while there is none. Asked once, when a coordinator is made.
  std::function<std::shared_ptr<QavAlertUserWindow>()> keyWindow;
  /// A new window, never null, not yet on the screen.
  std::function<std::shared_ptr<QavAlertWindow>()> makeAlertWindow;
};

/// Installs what the shared coordinator uses, both parts of it. Has an effect before the
/// coordinator is first asked for. Whoever draws the windows does it (installAlertWindows).
void installAlertEnvironment(QavAlertEnvironment installed);

/// The environment in force; stops when none was installed.
[[nodiscard]] const QavAlertEnvironment& alertEnvironment();

}  // namespace kindora
