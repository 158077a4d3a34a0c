// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include "platform/UIImage.h"
#include "platform/view/UIView.h"

namespace kindora {

/// How a picture of one shape is shown in bounds of another.
enum class UIViewContentMode {
  scaleAspectFill,  ///< it covers the bounds, and what does not fit is cut off
  scaleAspectFit,   ///< all of it, as large as the bounds allow
};

/// A view that shows one image or none.
class UIImageView : public UIView {
 public:
  /// Image views take no touches unless they are told to.
  UIImageView() { setUserInteractionEnabled(false); }

  [[nodiscard]] const UIImageRef& image() const { return image_; }
  virtual void setImage(const UIImageRef& image);
  [[nodiscard]] UIViewContentMode contentMode() const { return contentMode_; }
  void setContentMode(UIViewContentMode mode);
  /// The colour of template images; the window's tint when none is set.
  [[nodiscard]] const std::optional<UIColor>& tintColor() const { return tintColor_; }
  void setTintColor(const UIColor& color);

 private:
  UIImageRef image_;
  UIViewContentMode contentMode_ = UIViewContentMode::scaleAspectFill;
  std::optional<UIColor> tintColor_;
};

}  // namespace kindora
