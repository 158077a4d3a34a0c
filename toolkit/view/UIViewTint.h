// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include "platform/UIColor.h"

namespace kindora {

/// Whether a view draws what is tinted in its tint, or in grey because something lies above it.
enum class UIViewTintAdjustmentMode { automatic = 0, normal = 1, dimmed = 2 };

/// The tint of a view for which nobody chose one.
inline constexpr UIColor kDefaultTintColor{0, 0.478, 1, 1};

/// The grey of the same lightness.
[[nodiscard]] constexpr UIColor desaturated(const UIColor& tint) {
  const UIColor color = tint.resolvedColor();
  const double grey = 0.299 * color.red + 0.587 * color.green + 0.114 * color.blue;
  return {grey, grey, grey, color.alpha};
}

/// A view's tint, which what lies inside the view takes over.
class UIViewTint {
 public:
  /// Automatic is what the superview has, and normal where there is none.
  [[nodiscard]] UIViewTintAdjustmentMode tintAdjustmentMode() const { return mode_; }
  void setTintAdjustmentMode(UIViewTintAdjustmentMode mode);
  [[nodiscard]] bool isTintDimmed() const;
  /// None unless it was set on this very view.
  [[nodiscard]] const std::optional<UIColor>& ownTintColor() const { return ownColor_; }
  void setTintColor(const UIColor& color);
  /// The view's own tint, else the nearest superview's, else the given one; grey while dimmed.
  [[nodiscard]] UIColor tintColor(const UIColor& otherwise = kDefaultTintColor) const;

 protected:
  UIViewTint() = default;
  ~UIViewTint() = default;

 private:
  /// The superview's; null where there is none.
  [[nodiscard]] virtual std::shared_ptr<const UIViewTint> tintAbove() const = 0;
  /// The tint of this view may have changed, and of what lies inside it.
  virtual void tintDidChange() = 0;

  UIViewTintAdjustmentMode mode_ = UIViewTintAdjustmentMode::automatic;
  std::optional<UIColor> ownColor_;
};

}  // namespace kindora
