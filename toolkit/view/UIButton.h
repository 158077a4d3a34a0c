// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include "toolkit/view/UIControl.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {

/// A control that can be pressed: it shows a title, a picture, or both.
class UIButton final : public UIControl {
 public:
  [[nodiscard]] const std::string& title() const { return title_; }
  void setTitle(const std::string& title);
  /// Shows the picture; none takes it away.
  void setImage(const UIImageRef& image);
  [[nodiscard]] UIImageView& imageView() { return *imageView_; }
  [[nodiscard]] const UIImageView& imageView() const { return *imageView_; }

 private:
  std::string title_;
  std::shared_ptr<UIImageView> imageView_ = std::make_shared<UIImageView>();
  // What the picture shows is part of what the button shows.
  Subscription imageChanges_ = imageView_->observe([this] { changed(); });
};

}  // namespace kindora
