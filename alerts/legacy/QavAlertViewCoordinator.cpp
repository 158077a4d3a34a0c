// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewCoordinator.h"

#include <utility>

#include "alerts/legacy/QavAlertView.h"

namespace kindora {

QavAlertViewCoordinator::QavAlertViewCoordinator(QavAlertEnvironment environment)
    : environment_(std::move(environment)), userWindow_(environment_.keyWindow()) {}

QavAlertViewCoordinator& QavAlertViewCoordinator::sharedCoordinator() {
  static auto& shared = *new QavAlertViewCoordinator(alertEnvironment());
  return shared;
}

QavAlertWindow& QavAlertViewCoordinator::makeAlertWindowIfNeeded() {
  if (!alertWindow_) alertWindow_ = environment_.makeAlertWindow();
  return *alertWindow_;
}

void QavAlertViewCoordinator::notifyBefore(const std::function<void()>& callback) {
  isBeginning_ = true;
  callback();
  isBeginning_ = false;
}

void QavAlertViewCoordinator::presentAlert(AlertRef alert) {
  if (!alert) return;
  if (isInTransition()) {
    transitionQueue_.emplace_back(PresentRequest{std::move(alert)});
    return;
  }
  if (alert == visibleAlert_) return;
  alerts_.push_back(alert);
  if (!visibleAlert_) {
    if (userWindow_) userWindow_->setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
    makeAlertWindowIfNeeded().makeKeyAndVisible();
  }
  notifyBefore([&] { alert->willBePresented(); });
  showAlert(alert, visibleAlert_, true, [alert] { alert->wasPresented(); });
}

void QavAlertViewCoordinator::dismissAlert(AlertRef alert, int withButtonIndex, bool animated) {
  if (!alert) return;
  if (alert != visibleAlert_ && alert != presentingAlert_) {
    std::erase(alerts_, alert);
    alert->willBeDismissedWithButtonIndex(withButtonIndex);
    alert->wasDismissedWithButtonIndex(withButtonIndex);
    return;
  }
  if (isInTransition()) {
    transitionQueue_.emplace_back(DismissRequest{std::move(alert), withButtonIndex, animated});
    return;
  }
  std::erase(alerts_, alert);
  notifyBefore([&] { alert->willBeDismissedWithButtonIndex(withButtonIndex); });
  const AlertRef next = alerts_.empty() ? nullptr : alerts_.back();
  showAlert(next, alert, animated, [alert, next, withButtonIndex] {
    alert->wasDismissedWithButtonIndex(withButtonIndex);
    if (next) next->wasPresented();
  });
}

void QavAlertViewCoordinator::showAlert(AlertRef alert, AlertRef replacingAlert, bool animated,
                                        Completion completion) {
  if (!alert && userWindow_) {
    userWindow_->setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  }
  visibleAlert_ = nullptr;
  presentingAlert_ = alert;
  dismissingAlert_ = replacingAlert;
  // Keeps the window until its own operation has returned, even when that ends the transition.
  const std::shared_ptr<QavAlertWindow> window = alertWindow_;
  window->replaceAlert(std::move(replacingAlert), std::move(alert), animated,
                       [this, ended = std::move(completion)] { endTransition(ended); });
}

void QavAlertViewCoordinator::endTransition(const Completion& completion) {
  visibleAlert_ = std::exchange(presentingAlert_, nullptr);
  dismissingAlert_ = nullptr;
  if (!visibleAlert_) {
    if (userWindow_) userWindow_->makeKeyAndVisible();
    alertWindow_ = nullptr;
  }
  completion();
  performNextRequest();
}

void QavAlertViewCoordinator::performNextRequest() {
  if (transitionQueue_.empty()) return;
  const Request request = std::move(transitionQueue_.front());
  transitionQueue_.pop_front();
  if (const auto* present = std::get_if<PresentRequest>(&request)) {
    presentAlert(present->alert);
  } else {
    const auto& dismiss = std::get<DismissRequest>(request);
    dismissAlert(dismiss.alert, dismiss.buttonIndex, dismiss.animated);
  }
}

}  // namespace kindora
