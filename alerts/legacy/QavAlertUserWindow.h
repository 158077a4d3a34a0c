// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/view/UIViewTint.h"

namespace kindora {

/// What alerts ask of a window of the app.
class QavAlertUserWindow {
 public:
  virtual ~QavAlertUserWindow() = default;
  virtual void setTintAdjustmentMode(UIViewTintAdjustmentMode mode) = 0;
  /// Shows the window in front of those of its level and gives it the keyboard.
  virtual void makeKeyAndVisible() = 0;
};

}  // namespace kindora
