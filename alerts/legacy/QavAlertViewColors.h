// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"

namespace kindora {

[[nodiscard]] constexpr UIColor qav_alertSeparatorColor() { return {0.5, 0.5, 0.5, 0.5}; }
/// Of the border about an alert's text fields.
[[nodiscard]] constexpr UIColor qav_textFieldBackgroundViewColor() { return {0.5, 0.5, 0.5, 0.5}; }
/// Lies over what is behind an alert.
[[nodiscard]] constexpr UIColor qav_dimmedBackgroundColor() { return {0, 0, 0, 0.4}; }

}  // namespace kindora
