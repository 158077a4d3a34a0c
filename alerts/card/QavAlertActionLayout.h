// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// How an alert's buttons stand.
enum class QavAlertActionLayout {
  automatic = 0,  ///< two side by side, any other number one below another
  horizontal = 1,
  vertical = 2,
};

}  // namespace kindora
