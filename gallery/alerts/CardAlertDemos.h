// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gallery/alerts/AlertDemo.h"

namespace kindora {

/// Alerts on a card, by their controller.
[[nodiscard]] AlertDemoSection cardAlertDemos();

}  // namespace kindora
