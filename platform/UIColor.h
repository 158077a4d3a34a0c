// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// A colour in device RGB; every component is in [0, 1] and not premultiplied.
struct UIColor {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  [[nodiscard]] static constexpr UIColor clearColor() { return {0, 0, 0, 0}; }
  [[nodiscard]] static constexpr UIColor blackColor() { return {0, 0, 0, 1}; }
  [[nodiscard]] static constexpr UIColor whiteColor() { return {1, 1, 1, 1}; }
  [[nodiscard]] static constexpr UIColor yellowColor() { return {1, 1, 0, 1}; }
  [[nodiscard]] static constexpr UIColor redColor() { return {1, 0, 0, 1}; }
  [[nodiscard]] static constexpr UIColor darkTextColor() { return blackColor(); }
  [[nodiscard]] static constexpr UIColor colorWithWhite(double white, double alpha) {
    return {white, white, white, alpha};
  }
  /// Of what can be pressed, where nothing else is said.
  [[nodiscard]] static constexpr UIColor defaultTintColor() { return {0, 0.478, 1, 1}; }
  [[nodiscard]] constexpr UIColor colorWithAlphaComponent(double value) const {
    return {red, green, blue, value};
  }

  friend constexpr bool operator==(const UIColor&, const UIColor&) = default;
};

}  // namespace kindora
