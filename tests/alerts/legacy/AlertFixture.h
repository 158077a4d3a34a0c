// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "alerts/legacy/QavAlertEnvironment.h"
#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/QavAlertViewCoordinator.h"
#include "platform/fakes/FakeViewServices.h"

namespace kindora {

/// What happened, in order.
using EventLog = std::vector<std::string>;

/// Writes down what it is told, under the alert's title.
class RecordingDelegate final : public QavAlertViewDelegate {
 public:
  explicit RecordingDelegate(EventLog& log) : log_(log) {}
  void willPresentAlertView(QavAlertView& alert) override { write(alert, "will present"); }
  void didPresentAlertView(QavAlertView& alert) override { write(alert, "did present"); }
  void alertViewWillDismissWithButtonIndex(QavAlertView& alert, int index) override {
    write(alert, "will dismiss " + std::to_string(index));
  }
  void alertViewDidDismissWithButtonIndex(QavAlertView& alert, int index) override {
    write(alert, "did dismiss " + std::to_string(index));
  }

 private:
  void write(QavAlertView& alert, const std::string& event) {
    log_.push_back(alert.title().value_or("?") + ' ' + event);
  }
  EventLog& log_;
};

/// The app's window. Events: "user dim", "user undim", "user key".
class FakeUserWindow final : public QavAlertUserWindow {
 public:
  explicit FakeUserWindow(EventLog& log) : log_(log) {}
  void setTintAdjustmentMode(UIViewTintAdjustmentMode mode) override {
    log_.emplace_back(mode == UIViewTintAdjustmentMode::dimmed ? "user dim" : "user undim");
  }
  void makeKeyAndVisible() override { log_.emplace_back("user key"); }

 private:
  EventLog& log_;
};

/// An alert window whose transitions end when the test says so; without animation and without a
/// new alert they end at once. What comes takes presses, what goes does not. Events: "alert key",
/// "show B for A", "cut to B for A" (not animated), "alert released".
class FakeAlertWindow final : public QavAlertWindow {
 public:
  using Completions = std::vector<std::function<void()>>;

  FakeAlertWindow(EventLog& log, Completions& running) : log_(log), running_(running) {}
  ~FakeAlertWindow() override { log_.emplace_back("alert released"); }
  FakeAlertWindow(const FakeAlertWindow&) = delete;
  FakeAlertWindow& operator=(const FakeAlertWindow&) = delete;

  void makeKeyAndVisible() override { log_.emplace_back("alert key"); }
  void replaceAlert(std::shared_ptr<QavAlertView> oldAlert, std::shared_ptr<QavAlertView> withAlert,
                    bool animated, std::function<void()> completion) override {
    const auto name = [](const std::shared_ptr<QavAlertView>& alert) {
      return alert ? alert->title().value_or("?") : std::string("nothing");
    };
    log_.push_back((animated ? "show " : "cut to ") + name(withAlert) + " for " + name(oldAlert));
    if (withAlert) withAlert->setUserInteractionEnabled(true);
    if (oldAlert) oldAlert->setUserInteractionEnabled(false);
    if (!animated && !withAlert) {
      completion();
    } else {
      running_.push_back(std::move(completion));
    }
  }

 private:
  EventLog& log_;
  Completions& running_;
};

/// Fake windows for the shared coordinator, and alerts known by one letter.
class AlertFixture : public testing::Test {
 protected:
  AlertFixture() { installAlertEnvironment(environment()); }

  [[nodiscard]] QavAlertEnvironment environment() {
    return {[this] {
              ++keyWindowQuestions;
              return userWindow;
            },
            [this] {
              ++windowsMade;
              return std::make_shared<FakeAlertWindow>(log, running);
            }};
  }

  /// An alert that writes its events down.
  std::shared_ptr<QavAlertView> alert(const std::string& title) {
    return QavAlertView::initWithTitle(title, std::nullopt, delegate, "Cancel", {"OK"});
  }

  /// Ends the transition that runs.
  void endTransition() {
    ASSERT_EQ(running.size(), 1U) << "transitions never overlap";
    const auto completion = std::move(running.front());
    running.clear();
    completion();
  }

  /// The events since the last call.
  [[nodiscard]] EventLog events() { return std::exchange(log, {}); }

  FakeViewServices services = installFakeViewServices();
  EventLog log;
  FakeAlertWindow::Completions running;
  std::shared_ptr<FakeUserWindow> userWindow = std::make_shared<FakeUserWindow>(log);
  std::shared_ptr<RecordingDelegate> delegate = std::make_shared<RecordingDelegate>(log);
  int keyWindowQuestions = 0;
  int windowsMade = 0;
};

}  // namespace kindora
