// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIColor.h"
#include "platform/UIImage.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// How an image lies in its view's bounds.
enum class UIViewContentMode { scaleAspectFit, scaleAspectFill, center };

/// A view that shows one image or none.
class UIImageView : public UIView {
 public:
  /// Image views take no touches unless they are told to.
  UIImageView() { setUserInteractionEnabled(false); }

  [[nodiscard]] const UIImageRef& image() const { return image_; }
  virtual void setImage(const UIImageRef& image);
  [[nodiscard]] UIViewContentMode contentMode() const { return contentMode_; }
  void setContentMode(UIViewContentMode mode);

 private:
  template <typename Value>
  void assign(Value& field, const Value& value);

  UIImageRef image_;
  UIViewContentMode contentMode_ = UIViewContentMode::scaleAspectFill;
};

}  // namespace kindora
