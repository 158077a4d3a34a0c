// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "platform/view/UIView.h"

namespace kindora {

/// A view that shows plain text or none.
class UILabel final : public UIView {
 public:
  [[nodiscard]] const std::optional<std::string>& text() const { return text_; }
  void setText(const std::optional<std::string>& text);

 private:
  std::optional<std::string> text_;
};

}  // namespace kindora
