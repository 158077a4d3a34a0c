// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/UIScreen.h"

namespace kindora {

/// The app's own window, which is what it may use of the screen; the whole primary screen before
/// there is a window.
class QtScreen final : public UIScreen {
 public:
  [[nodiscard]] double scale() const override;
  [[nodiscard]] CGRect bounds() const override;
};

}  // namespace kindora
