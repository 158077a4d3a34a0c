// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIApplication.h"

#include <QJSEngine>

namespace kindora {

UIApplication* UIApplication::sharedApplication() {
  static UIApplication& application = *new UIApplication;  // outlives every static
  return &application;
}

UIApplication* UIApplication::create(QQmlEngine* /*qmlEngine*/, QJSEngine* /*jsEngine*/) {
  QJSEngine::setObjectOwnership(sharedApplication(), QJSEngine::CppOwnership);
  return sharedApplication();
}

void UIApplication::setApplicationSupportsShakeToEdit(bool supports) {
  if (supportsShakeToEdit_ == supports) return;
  supportsShakeToEdit_ = supports;
  emit listensForMotionChanged();
}

void UIApplication::setKeyWindow(UIWindow* window) {
  if (keyWindow_ == window) return;
  const QPointer<UIWindow> before = keyWindow_;
  keyWindow_ = window;
  if (before) emit before->keyChanged();
  if (window != nullptr) emit window->keyChanged();
  emit keyWindowChanged();
}

bool UIApplication::goBack() { return keyWindow_ && keyWindow_->goBack(); }

void UIApplication::orderWindow(UIWindow& window) {
  windowList_.raise(window);
  tellOrder();
}

// Whatever lay below the window, or above it, may be covered or free now.
void UIApplication::tellOrder() {
  const std::vector<UIWindow*> windows = windowList_.items();
  for (UIWindow* other : windows) emit other->coveredChanged();
  emit tintColorChanged();
}

void UIApplication::removeWindow(UIWindow& window) {
  if (keyWindow_ == &window) setKeyWindow(nullptr);
  windowList_.remove(window);
  tellOrder();
}

bool UIApplication::listensForMotion() const {
  return supportsShakeToEdit_ && UIResponder::motionResponder() != nullptr;
}

void UIApplication::shake() {
  if (listensForMotion()) UIResponder::motionResponder()->motionEnded(UIEventSubtype::motionShake);
}

}  // namespace kindora
