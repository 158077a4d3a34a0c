// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/AlertLayerWindow.h"

#include "alerts/qt/AlertWindows.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/view/UIViewTint.h"

namespace kindora {
namespace {

// Nothing: what lies below is drawn and touched as if it were not there.
class EmptyViewController final : public UIViewController {
 public:
  [[nodiscard]] UIViewRef loadView() override {
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
  const WindowList* windows = UIApplication::sharedApplication()->windowList();
  connect(windows, &WindowList::rowsInserted, this, &AlertLayerWindow::update);
  connect(windows, &WindowList::rowsRemoved, this, &AlertLayerWindow::update);
  connect(window_->presentations(), &ControllerList::countChanged, this, &AlertLayerWindow::update);
  update();
}

AlertLayerWindow::~AlertLayerWindow() = default;

void AlertLayerWindow::update() {
  const bool shows = window_->presentations()->count() > 0 ||
                     UIApplication::sharedApplication()->windows().size() > 1;
  if (shows_ == shows) return;
  shows_ = shows;
  emit showsChanged();
}

}  // namespace kindora
