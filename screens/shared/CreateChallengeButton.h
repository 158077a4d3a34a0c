// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// The bar button with which a screen opens the create screen, by its segue.
[[nodiscard]] UIBarButtonItemRef createChallengeButton(UIViewController& screen);

}  // namespace kindora
