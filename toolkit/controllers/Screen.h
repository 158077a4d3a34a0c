// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Pixels a point on the main screen; 1 before there is a screen.
[[nodiscard]] double mainScreenScale();

}  // namespace kindora
