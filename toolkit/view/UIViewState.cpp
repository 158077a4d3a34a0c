// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewState.h"

namespace kindora {

UIViewState interpolated(const UIViewState& from, const UIViewState& to, double fraction) {
  // Not std::lerp: at 0 and 1 this is exact for the finite values that views hold.
  const auto mix = [fraction](double a, double b) { return a * (1 - fraction) + b * fraction; };
  const auto point = [&mix](CGPoint a, CGPoint b) { return CGPoint{mix(a.x, b.x), mix(a.y, b.y)}; };
  const auto size = [&mix](CGSize a, CGSize b) {
    return CGSize{mix(a.width, b.width), mix(a.height, b.height)};
  };
  const auto color = [&mix](const UIColor& a, const UIColor& b) {
    if (a == b) return b;  // a dynamic one stays so
    const UIColor before = a.resolvedColor();
    const UIColor after = b.resolvedColor();
    return UIColor{mix(before.red, after.red), mix(before.green, after.green),
                   mix(before.blue, after.blue), mix(before.alpha, after.alpha)};
  };
  return {
      .frame = {point(from.frame.origin, to.frame.origin), size(from.frame.size, to.frame.size)},
      .alpha = mix(from.alpha, to.alpha),
      .backgroundColor = color(from.backgroundColor, to.backgroundColor),
      .translation = point(from.translation, to.translation),
      .scaling = mix(from.scaling, to.scaling),
      .cornerRadius = mix(from.cornerRadius, to.cornerRadius),
      .shadowOpacity = mix(from.shadowOpacity, to.shadowOpacity),
      .shadowOffset = size(from.shadowOffset, to.shadowOffset),
      .curl = mix(from.curl, to.curl),
      .layout = mix(from.layout, to.layout)};
}

}  // namespace kindora
