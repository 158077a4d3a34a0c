// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

namespace kindora {

enum class UIAccessibilityRole { none, staticText, header, button, alert };

/// What a screen reader says of a view.
class UIViewAccessibility {
 public:
  /// What is read aloud for the view; none for what only stands there.
  [[nodiscard]] const std::optional<std::string>& accessibilityLabel() const {
    return accessibilityLabel_;
  }
  [[nodiscard]] UIAccessibilityRole accessibilityRole() const { return accessibilityRole_; }
  void setAccessibility(UIAccessibilityRole role, const std::optional<std::string>& label);

 protected:
  UIViewAccessibility() = default;
  ~UIViewAccessibility() = default;

 private:
  virtual void changed() = 0;

  std::optional<std::string> accessibilityLabel_;
  UIAccessibilityRole accessibilityRole_ = UIAccessibilityRole::none;
};

}  // namespace kindora
