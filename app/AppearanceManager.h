// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Sets the look that all bars share.
class AppearanceManager final {
 public:
  AppearanceManager() = delete;
  static void configureAppearance();
};

}  // namespace kindora
