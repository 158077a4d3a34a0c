// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include "toolkit/view/UITextField.h"

namespace kindora {

/// A field of an alert; its text stands a little inside its edges.
class QavAlertViewTextField final : public UITextField {
 public:
  QavAlertViewTextField() { setTextInsets({.top = 0, .left = 4, .bottom = 0, .right = 4}); }

  /// The alert's own; called after editingChanged, which is free for the app.
  std::function<void()> textDidChange;

 protected:
  void didChange() override {
    UITextField::didChange();
    if (textDidChange) textDidChange();
  }
};

}  // namespace kindora
