// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/AlertLayerWindow.h"

#include "alerts/qt/AlertWindows.h"
#include "platform/qt/quick/QtViewServices.h"
#include "platform/view/UIViewTint.h"

namespace kindora {
namespace {

// Nothing: what lies below is drawn and touched as if it were not there.
class EmptyViewController final : public UIViewController {
 public:
  [[nodiscard]] std::shared_ptr<UIView> loadView() override {
    auto view = std::make_shared<UIView>();
    view->setUserInteractionEnabled(false);
    return view;
  }
};

}  // namespace

AlertLayerWindow::AlertLayerWindow(QObject* parent)
    : QObject(parent), root_(makeViewController<EmptyViewController>()), window_(makeWindow()) {
  ensureViewServices();
  installAlertWindows();
  window_->setTintColor(kDefaultTintColor);
  window_->setRootViewController(root_);
  window_->makeKeyAndVisible();
}

AlertLayerWindow::~AlertLayerWindow() = default;

}  // namespace kindora
