// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UIWindow.h"

#include "platform/qt/toolkit/UIApplication.h"
#include "platform/qt/toolkit/UIViewController.h"

namespace kindora {

UIWindow::UIWindow() = default;
UIWindow::~UIWindow() = default;

void UIWindow::setTintColor(const UIColor& color) {
  if (tintColor_ == color) return;
  tintColor_ = color;
  emit tintColorChanged();
}

void UIWindow::setRootViewController(const UIViewControllerRef& controller) {
  if (root_ == controller) return;
  root_ = controller;
  emit rootViewControllerChanged();
}

void UIWindow::makeKeyAndVisible() {
  UIApplication::sharedApplication()->setKeyWindow(this);
  if (!root_) return;
  root_->beginAppearanceTransition(true, false);
  root_->endAppearanceTransition();
}

bool UIWindow::goBack() {
  UIViewController* top = root_.get();
  if (top == nullptr) return false;
  while (top->presentedViewController()) top = top->presentedViewController().get();
  return top->goBack();
}

}  // namespace kindora
