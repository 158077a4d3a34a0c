// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewInteraction.h"

#include <utility>

namespace kindora {

void UIViewInteraction::setUserInteractionEnabled(bool enabled) {
  if (userInteractionEnabled_ == enabled) return;
  userInteractionEnabled_ = enabled;
  changed();
}

void UIViewInteraction::setTapGestureRecognizer(
    std::shared_ptr<UITapGestureRecognizer> recognizer) {
  tapGestureRecognizer_ = std::move(recognizer);
  changed();
}

}  // namespace kindora
