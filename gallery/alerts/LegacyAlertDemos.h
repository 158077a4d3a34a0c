// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gallery/alerts/AlertDemo.h"

namespace kindora {

/// Alerts whose buttons are known by their index, in a window of their own.
[[nodiscard]] AlertDemoSection legacyAlertDemos();

}  // namespace kindora
