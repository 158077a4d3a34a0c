// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/view/UIView.h"

namespace kindora {

/// A view that the user works with while it is enabled.
class UIControl : public UIView {
 public:
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

 private:
  bool enabled_ = true;
};

}  // namespace kindora
