// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// A colour in device RGB; every component is in [0, 1] and not premultiplied. A dynamic colour is
/// another one at different times.
struct UIColor {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;  ///< of a dynamic colour a factor
  UIColor (*provider)() = nullptr;

  [[nodiscard]] static constexpr UIColor clearColor() { return {0, 0, 0, 0}; }
  [[nodiscard]] static constexpr UIColor blackColor() { return {0, 0, 0, 1}; }
  [[nodiscard]] static constexpr UIColor whiteColor() { return {1, 1, 1, 1}; }
  [[nodiscard]] static constexpr UIColor yellowColor() { return {1, 1, 0, 1}; }
  [[nodiscard]] static constexpr UIColor redColor() { return {1, 0, 0, 1}; }
  [[nodiscard]] static constexpr UIColor darkTextColor() { return blackColor(); }
  [[nodiscard]] static constexpr UIColor colorWithWhite(double white, double alpha) {
    return {white, white, white, alpha};
  }
  [[nodiscard]] constexpr UIColor colorWithAlphaComponent(double value) const {
    return {red, green, blue, value, provider};
  }
  /// What the function says whenever the colour is drawn.
  [[nodiscard]] static constexpr UIColor dynamicColor(UIColor (*provider)()) {
    return {0, 0, 0, 1, provider};
  }
  /// The colour as it is to be drawn now, which is no dynamic one.
  [[nodiscard]] constexpr UIColor resolvedColor() const {
    if (provider == nullptr) return *this;
    const UIColor now = provider().resolvedColor();
    return now.colorWithAlphaComponent(now.alpha * alpha);
  }

  friend constexpr bool operator==(const UIColor&, const UIColor&) = default;
};

}  // namespace kindora
