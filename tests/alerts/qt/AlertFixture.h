// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "alerts/qt/AlertWindows.h"
#include "alerts/qt/QavAlertController.h"
#include "platform/fakes/FakeViewServices.h"
#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {

/// A window of 320 by 480 points with a screen in it, over which alerts are shown.
class AlertFixture : public ToolkitFixture {
 protected:
  AlertFixture() {
    installAlertWindows();
    window.reportSize(320, 480);
    show(base);
    log();
  }

  static QavAlertControllerRef alert(const std::optional<std::string>& title = "Title",
                                     const std::optional<std::string>& message = "Message") {
    return QavAlertController::alertControllerWithTitle(title, message,
                                                        QavAlertControllerStyle::alert);
  }
  /// An action whose handler writes its title down.
  QavAlertActionRef action(const std::string& title,
                           QavAlertActionStyle style = QavAlertActionStyle::standard) {
    return QavAlertAction::actionWithTitle(title, style, [this](QavAlertAction& chosen) {
      note("handled " + chosen.title().value_or("nothing"));
    });
  }
  /// As if the user had tapped the action's button.
  static void tap(QavAlertController& controller, const QavAlertActionRef& action) {
    controller.alertControllerViewDidPerformAction(*controller.alert(), action);
  }
  /// Long enough for an alert to have come, or gone.
  void pass() { time.advance(0.5); }

  const FakeViewServices fakes = installFakeViewServices();
  const std::shared_ptr<RecordingController> base = screen("base");
};

}  // namespace kindora
