// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/view/UIVisualEffectView.h"

namespace kindora {

/// What an alert's content stands on: a light panel through which the app shimmers.
class QavAlertViewBackgroundView final : public UIView {
 public:
  [[nodiscard]] static std::shared_ptr<QavAlertViewBackgroundView> make();

  /// As large as this view.
  [[nodiscard]] const std::shared_ptr<UIVisualEffectView>& panel() const { return panel_; }

 private:
  QavAlertViewBackgroundView() = default;

  std::shared_ptr<UIVisualEffectView> panel_ =
      UIVisualEffectView::withBlur(UIBlurEffectStyle::extraLight);
};

}  // namespace kindora
