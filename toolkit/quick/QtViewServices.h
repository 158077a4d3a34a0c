// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/ViewServices.h"

namespace kindora {

/// What views need, on Qt. Call it on the main thread, after the application object is made.
[[nodiscard]] ViewServices makeQtViewServices();

/// Installs them unless some are in force: for programs that use nothing of Kindora but its QML.
void ensureViewServices();

}  // namespace kindora
