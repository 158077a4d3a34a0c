// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"

namespace kindora {

/// A line along the inside of a view's bounds.
struct UIViewBorder {
  UIColor color = UIColor::blackColor();
  double width = 0;  ///< points
  friend constexpr bool operator==(const UIViewBorder&, const UIViewBorder&) = default;
};

/// What of a view's look no animation moves.
class UIViewAppearance {
 public:
  /// Not drawn, pressed or read aloud while it is hidden.
  [[nodiscard]] bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);

  [[nodiscard]] const UIViewBorder& border() const { return border_; }
  void setBorder(const UIViewBorder& border);

  /// Subviews are cut off at the bounds, with the corner radius.
  [[nodiscard]] bool clipsToBounds() const { return clipsToBounds_; }
  void setClipsToBounds(bool clips);

  /// Corner radius of the rounded rectangle over the bounds that casts the shadow; none when
  /// negative.
  [[nodiscard]] double shadowPathRadius() const { return shadowPathRadius_; }
  void setShadowPathRadius(double radius);

  /// Kept for the platform's interface; whoever draws views here makes no bitmap of them. The scale
  /// is in pixels a point.
  [[nodiscard]] bool shouldRasterize() const { return shouldRasterize_; }
  [[nodiscard]] double rasterizationScale() const { return rasterizationScale_; }
  void setShouldRasterize(bool on, double scale);

 protected:
  UIViewAppearance() = default;
  ~UIViewAppearance() = default;

 private:
  virtual void changed() = 0;

  bool hidden_ = false;
  bool clipsToBounds_ = false;
  bool shouldRasterize_ = false;
  double rasterizationScale_ = 1;
  double shadowPathRadius_ = -1;
  UIViewBorder border_;
};

}  // namespace kindora
