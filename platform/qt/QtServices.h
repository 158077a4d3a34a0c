// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/Services.h"

namespace kindora {

/// The phone's services on Qt and ICU. Call it on the main thread, after the application object is
/// made. Nothing starts before it is used: no thread, no connection, no timer.
[[nodiscard]] Services makeQtServices();

}  // namespace kindora
