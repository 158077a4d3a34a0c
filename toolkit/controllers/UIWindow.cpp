// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIWindow.h"

#include <algorithm>

#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

namespace {

UIApplication& application() { return *UIApplication::sharedApplication(); }

void showOrHide(UIViewController& controller, bool shows) {
  controller.beginAppearanceTransition(shows, false);
  controller.endAppearanceTransition();
}

}  // namespace

UIWindow::UIWindow() : tintColor_(kDefaultTintColor) {}

UIWindow::~UIWindow() { application().removeWindow(*this); }

void UIWindow::setTintColor(const UIColor& color) {
  if (tintColor_ == color) return;
  tintColor_ = color;
  emit tintColorChanged();
  emit application().tintColorChanged();
}

void UIWindow::setTintAdjustmentMode(UIViewTintAdjustmentMode mode) {
  if (tintAdjustmentMode_ == mode) return;
  tintAdjustmentMode_ = mode;
  emit tintColorChanged();
  emit application().tintColorChanged();
}

UIColor UIWindow::drawnTintColor() const {
  return tintAdjustmentMode_ == UIViewTintAdjustmentMode::dimmed ? desaturated(tintColor_)
                                                                 : tintColor_;
}

void UIWindow::setWindowLevel(double level) {
  if (windowLevel_ == level) return;
  windowLevel_ = level;
  if (!hidden_) application().orderWindow(*this);
}

bool UIWindow::isCovered() const {
  const std::vector<UIWindow*>& windows = application().windows();
  const auto self = std::ranges::find(windows, this);
  return self != windows.end() && std::any_of(self + 1, windows.end(), [](const UIWindow* above) {
           return above->windowLevel_ >= UIWindowLevelAlert;
         });
}

void UIWindow::reportSize(double width, double height) {
  if (size_ == CGSize{width, height}) return;
  size_ = {width, height};
  placeRootView();
  emit sizeChanged();
}

// A view that a storyboard knows is placed by its item.
void UIWindow::placeRootView() {
  if (root_ && root_->isViewLoaded() && root_->view()->placer() == UIViewPlacer::record) {
    root_->view()->setFrame(bounds());
  }
}

void UIWindow::setRootViewController(const UIViewControllerRef& controller) {
  if (root_ == controller) return;
  const UIViewControllerRef before = root_;
  root_ = controller;
  if (before) before->window_ = nullptr;
  if (before && !hidden_) showOrHide(*before, false);
  if (root_) root_->window_ = this;
  if (root_ && !hidden_) {
    root_->loadViewIfNeeded();
    placeRootView();
    showOrHide(*root_, true);
  }
  emit rootViewControllerChanged();
}

void UIWindow::makeKeyAndVisible() {
  setHidden(false);
  application().orderWindow(*this);
  application().setKeyWindow(this);
}

bool UIWindow::isKeyWindow() const { return application().keyWindow() == this; }

void UIWindow::setHidden(bool hidden) {
  if (hidden_ == hidden) return;
  hidden_ = hidden;
  if (root_ && !hidden) {
    root_->loadViewIfNeeded();
    placeRootView();
  }
  hidden ? application().removeWindow(*this) : application().orderWindow(*this);
  if (root_) showOrHide(*root_, !hidden);
}

std::shared_ptr<UIWindow> makeWindow() {
  return {new UIWindow, [](UIWindow* window) {
            window->setHidden(true);
            window->deleteLater();
          }};
}

bool UIWindow::goBack() {
  UIViewController* top = root_.get();
  if (top == nullptr) return false;
  while (top->presentedViewController()) top = top->presentedViewController().get();
  return top->goBack();
}

}  // namespace kindora
