// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// The controller above which something new is presented: the top one from the key window's root
/// on. Null without a key window or a root.
[[nodiscard]] UIViewControllerRef qav_currentViewController();

/// The top controller from the given one on: the top of what a navigation controller shows, else
/// the top of what the controller presents, else the controller itself. Tabs are not entered. Null
/// for null.
[[nodiscard]] UIViewControllerRef qav_topViewControllerForViewController(
    const UIViewControllerRef& viewController);

}  // namespace kindora
