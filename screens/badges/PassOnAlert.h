// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "model/Challenge.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {

/// Offers to pass the challenge on: "Later" leaves the screen, "Kindora!" hands the challenge to
/// the Badges screen first.
[[nodiscard]] std::shared_ptr<UIAlertController> passOnAlert(const std::string& title,
                                                             const std::string& message,
                                                             const ChallengeRef& challenge,
                                                             const std::function<void()>& leave);

}  // namespace kindora
