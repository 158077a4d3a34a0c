// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/UIImage.h"
#include "platform/view/UIView.h"

namespace kindora {

/// A view that shows one image or none.
class UIImageView : public UIView {
 public:
  /// Image views take no touches unless they are told to.
  UIImageView() { setUserInteractionEnabled(false); }

  [[nodiscard]] const UIImageRef& image() const { return image_; }
  virtual void setImage(const UIImageRef& image);

 private:
  UIImageRef image_;
};

}  // namespace kindora
