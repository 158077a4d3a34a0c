// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIStoryboard.h"

namespace kindora {

/// Puts a screen on top of the stack and leaves it by a segue that unwinds to that action.
inline void comeBackFromAbove(UINavigationController& stack, const std::string& action) {
  const UIStoryboard storyboard({{.identifier = "above",
                                  .make = [] { return makeViewController<UIViewController>(); },
                                  .segues = {{"back", UIStoryboardSegueKind::unwind, action}}}});
  const UIViewControllerRef above = storyboard.instantiateViewController("above");
  stack.pushViewController(above, false);
  above->performSegueWithIdentifier("back");
}

}  // namespace kindora
