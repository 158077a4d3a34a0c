// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// The easing that changes nothing.
inline constexpr auto TovLinearEasing = [](double fraction) { return fraction; };

}  // namespace kindora
