// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/ThemeValues.h"

namespace kindora::theme {
namespace {

// The colour with a share of another one in it.
UIColor mixed(const UIColor& color, const UIColor& other, double share) {
  const auto mix = [share](double a, double b) { return a + (b - a) * share; };
  return {mix(color.red, other.red), mix(color.green, other.green), mix(color.blue, other.blue),
          color.alpha};
}

}  // namespace

UIColor tintedText(const UIColor& tint) {
  const Looks now = looks();
  const UIColor color = tint.resolvedColor();
  if (now.dark) return mixed(color, UIColor::whiteColor(), now.highContrast ? 0.5 : 0.27);
  return mixed(color, UIColor::blackColor(), now.highContrast ? 0.58 : 0.4);
}

bool stillness() { return looks().reducedMotion; }

}  // namespace kindora::theme
