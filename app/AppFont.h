// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIFont.h"

namespace kindora {

/// The interface's one font, in points of the view.
[[nodiscard]] inline UIFont appFont(double pointSize) { return {"AvenirNext-Medium", pointSize}; }

}  // namespace kindora
