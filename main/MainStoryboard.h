// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UITabBarController.h"

namespace kindora {

/// The table of the app's screens and of the ways between them.
[[nodiscard]] const UIStoryboard& mainStoryboard();

/// The window's root: tab 0 the challenge list, tab 1 the badges, each in a navigation controller.
[[nodiscard]] std::shared_ptr<UITabBarController> makeRootTabBarController();

}  // namespace kindora
