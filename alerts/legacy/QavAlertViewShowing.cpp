// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What an alert asks of the coordinator. The coordinator knows alerts; the rest of an alert does
// not know it.
#include <utility>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/QavAlertViewCoordinator.h"

namespace kindora {

QavAlertViewCoordinator& QavAlertView::transitionCoordinator() {
  return QavAlertViewCoordinator::sharedCoordinator();
}

void QavAlertView::show() {
  setUserInteractionEnabled(true);
  updateFirstOtherButton();
  alertContentView_->textDidChange = [weak = std::weak_ptr(self())] {
    if (const auto alert = weak.lock()) alert->updateFirstOtherButton();
  };
  alertContentView_->prepareForShowing();
  for (const UIViewRef& part : {UIViewRef(alertBackgroundView_), UIViewRef(alertContentView_)}) {
    part->removeFromSuperview();  // with the constraints of an earlier showing
    addSubview(part);
    qav_alignEdgesWithSuperview(part, UIRectEdge::all);
  }
  transitionCoordinator().presentAlert(self());
}

void QavAlertView::showWithDismissHandler(std::function<void(int buttonIndex)> dismissHandler) {
  didDismissHandler = std::move(dismissHandler);
  show();
}

void QavAlertView::dismissWithClickedButtonIndex(int index, bool animated) {
  transitionCoordinator().dismissAlert(self(), index, animated);
}

bool QavAlertView::isVisible() const {
  return transitionCoordinator().visibleAlert().get() == this;
}

}  // namespace kindora
