// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/view/UIView.h"

namespace kindora {

enum class UIBlurEffectStyle { extraLight = 0, light = 1, dark = 2 };

/// A panel through which what lies behind shows blurred, or a translucent one of the same tone
/// where nothing can blur. What stands on it belongs into its content view.
class UIVisualEffectView final : public UIView {
 public:
  [[nodiscard]] static std::shared_ptr<UIVisualEffectView> withBlur(UIBlurEffectStyle style);

  [[nodiscard]] UIBlurEffectStyle style() const { return style_; }
  /// As large as the view, by constraints.
  [[nodiscard]] const UIViewRef& contentView() const { return contentView_; }

 private:
  explicit UIVisualEffectView(UIBlurEffectStyle style) : style_(style) {}

  UIBlurEffectStyle style_;
  UIViewRef contentView_ = std::make_shared<UIView>();
};

}  // namespace kindora
