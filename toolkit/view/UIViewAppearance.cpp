// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAppearance.h"

namespace kindora {

void UIViewAppearance::setHidden(bool hidden) {
  if (hidden_ == hidden) return;
  hidden_ = hidden;
  changed();
}

void UIViewAppearance::setBorder(const UIViewBorder& border) {
  if (border_ == border) return;
  border_ = border;
  changed();
}

void UIViewAppearance::setClipsToBounds(bool clips) {
  if (clipsToBounds_ == clips) return;
  clipsToBounds_ = clips;
  changed();
}

void UIViewAppearance::setShadowPathRadius(double radius) {
  shadowPathRadius_ = radius;
  changed();
}

void UIViewAppearance::setShouldRasterize(bool on, double scale) {
  shouldRasterize_ = on;
  rasterizationScale_ = scale;
  changed();
}

}  // namespace kindora
