// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UIApplication.h"

namespace kindora {

UIApplication* UIApplication::sharedApplication() {
  static UIApplication& application = *new UIApplication;  // outlives every static
  return &application;
}

void UIApplication::setApplicationSupportsShakeToEdit(bool supports) {
  if (supportsShakeToEdit_ == supports) return;
  supportsShakeToEdit_ = supports;
  emit listensForMotionChanged();
}

void UIApplication::setKeyWindow(UIWindow* window) { keyWindow_ = window; }

bool UIApplication::listensForMotion() const {
  return supportsShakeToEdit_ && UIResponder::firstResponder() != nullptr;
}

void UIApplication::shake() {
  if (listensForMotion()) UIResponder::firstResponder()->motionEnded(UIEventSubtype::motionShake);
}

}  // namespace kindora
