// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/AlertWindows.h"

#include <QPointer>
#include <memory>
#include <utility>

#include "alerts/legacy/QavAlertEnvironment.h"
#include "alerts/qt/QavAlertViewController.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

class UserWindow final : public QavAlertUserWindow {
 public:
  explicit UserWindow(UIWindow* window) : window_(window) {}
  void setTintAdjustmentMode(UIViewTintAdjustmentMode mode) override {
    if (window_) window_->setTintAdjustmentMode(mode);
  }
  void makeKeyAndVisible() override {
    if (window_) window_->makeKeyAndVisible();
  }

 private:
  QPointer<UIWindow> window_;
};

class AlertWindow final : public QavAlertWindow {
 public:
  AlertWindow() {
    window_->setWindowLevel(UIWindowLevelAlert);
    window_->setRootViewController(controller_);
  }
  void makeKeyAndVisible() override { window_->makeKeyAndVisible(); }
  void replaceAlert(std::shared_ptr<QavAlertView> oldAlert, std::shared_ptr<QavAlertView> withAlert,
                    bool animated, std::function<void()> completion) override {
    controller_->replaceAlert(oldAlert, withAlert, animated, std::move(completion));
  }

 private:
  std::shared_ptr<QavAlertViewController> controller_ =
      makeViewController<QavAlertViewController>();
  std::shared_ptr<UIWindow> window_ = makeWindow();
};

}  // namespace

void installAlertWindows() {
  static const bool once = [] {
    installAlertEnvironment({.keyWindow = []() -> std::shared_ptr<QavAlertUserWindow> {
                               UIWindow* window = UIApplication::sharedApplication()->keyWindow();
                               return window != nullptr ? std::make_shared<UserWindow>(window)
                                                        : nullptr;
                             },
                             .makeAlertWindow = [] { return std::make_shared<AlertWindow>(); }});
    return true;
  }();
  static_cast<void>(once);
}

}  // namespace kindora
