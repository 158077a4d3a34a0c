// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// Presents an alert without buttons over the screen and dismisses it after that time, both
/// animated. Once it has gone, calls the completion. Nothing happens any more when the screen goes
/// first.
void presentPassingAlert(UIViewController& screen, const std::string& title,
                         const std::optional<std::string>& message, double seconds,
                         std::function<void()> completion);

}  // namespace kindora
