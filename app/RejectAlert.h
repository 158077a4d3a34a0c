// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "model/Challenge.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {

/// The question asked before a challenge is rejected or deleted; the caller presents it. Each
/// closure may be empty and runs when its button was chosen and the alert has gone.
[[nodiscard]] std::shared_ptr<UIAlertController> rejectAlertForChallenge(
    const Challenge& challenge, std::function<void()> onReject,
    std::function<void()> onNeverMind = {});

}  // namespace kindora
