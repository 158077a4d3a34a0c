// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Shows alerts one at a time in a window above the app: the newest is seen, the others wait below
// it and come back when it goes.
//
// Transitions never overlap. A request that would begin one while another runs is postponed, and
// each transition that ends performs one postponed request, the oldest. One that begins no
// transition (the dismissal of a covered alert) leaves those behind it waiting for the next end.
// Main thread only, but for the making of the shared instance.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

#include "alerts/legacy/QavAlertEnvironment.h"

namespace kindora {

class QavAlertView;

class QavAlertViewCoordinator final {
 public:
  using AlertRef = std::shared_ptr<QavAlertView>;

  /// Postponed calls with their arguments, which they keep alive.
  struct PresentRequest {
    AlertRef alert;
  };
  struct DismissRequest {
    AlertRef alert;
    int buttonIndex = 0;
    bool animated = true;
  };
  using Request = std::variant<PresentRequest, DismissRequest>;

  /// Takes the key window of that moment. The coordinator must outlive its transitions.
  explicit QavAlertViewCoordinator(QavAlertEnvironment environment);
  QavAlertViewCoordinator(const QavAlertViewCoordinator&) = delete;
  QavAlertViewCoordinator& operator=(const QavAlertViewCoordinator&) = delete;

  /// The app's one coordinator, made at the first call in the installed environment and never
  /// destroyed.
  [[nodiscard]] static QavAlertViewCoordinator& sharedCoordinator();

  /// Covers the visible alert, which gets no callbacks. The alert that is visible itself is left as
  /// it is; null is ignored.
  void presentAlert(AlertRef alert);
  /// An alert that is neither visible nor on its way in is told of its dismissal at once, whether
  /// or not it was ever presented or is just going; a presentation of it that was postponed
  /// remains. Null is ignored.
  void dismissAlert(AlertRef alert, int withButtonIndex, bool animated);

  [[nodiscard]] const std::shared_ptr<QavAlertUserWindow>& userWindow() const {
    return userWindow_;
  }
  /// Null while no alert is shown.
  [[nodiscard]] const std::shared_ptr<QavAlertWindow>& alertWindow() const { return alertWindow_; }
  /// The newest last.
  [[nodiscard]] const std::vector<AlertRef>& alerts() const { return alerts_; }
  /// The two of the running transition.
  [[nodiscard]] const AlertRef& presentingAlert() const { return presentingAlert_; }
  [[nodiscard]] const AlertRef& dismissingAlert() const { return dismissingAlert_; }
  /// None while a transition runs.
  [[nodiscard]] const AlertRef& visibleAlert() const { return visibleAlert_; }
  /// The oldest first.
  [[nodiscard]] const std::deque<Request>& transitionQueue() const { return transitionQueue_; }

 private:
  using Completion = std::function<void()>;

  [[nodiscard]] bool isInTransition() const {
    return isBeginning_ || presentingAlert_ || dismissingAlert_;
  }
  /// Runs a callback that precedes a transition; what it asks for waits until that has ended.
  void notifyBefore(const std::function<void()>& callback);
  void showAlert(AlertRef alert, AlertRef replacingAlert, bool animated, Completion completion);
  void endTransition(const Completion& completion);
  void performNextRequest();
  QavAlertWindow& makeAlertWindowIfNeeded();

  QavAlertEnvironment environment_;
  std::shared_ptr<QavAlertUserWindow> userWindow_;
  std::shared_ptr<QavAlertWindow> alertWindow_;
  std::vector<AlertRef> alerts_;
  AlertRef presentingAlert_;
  AlertRef dismissingAlert_;
  AlertRef visibleAlert_;
  bool isBeginning_ = false;
  std::deque<Request> transitionQueue_;
};

}  // namespace kindora
