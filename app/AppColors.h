// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"

namespace kindora {

/// The app colour, an opaque fresh green; a new value at every call.
[[nodiscard]] UIColor appColor();

}  // namespace kindora
