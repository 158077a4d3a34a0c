// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "platform/view/UIView.h"

namespace kindora {

/// A view that can be pressed while it is enabled.
class UIButton final : public UIView {
 public:
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  [[nodiscard]] const std::string& title() const { return title_; }
  void setTitle(const std::string& title);

 private:
  bool enabled_ = true;
  std::string title_;
};

}  // namespace kindora
