// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PassingAlert.h"

#include <utility>

#include "app/RunAfterDelay.h"
#include "platform/services/Services.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {

void presentPassingAlert(UIViewController& screen, const std::string& title,
                         const std::optional<std::string>& message, double seconds,
                         std::function<void()> completion) {
  const auto alert =
      makeViewController<UIAlertController>(title, message, UIAlertControllerStyle::alert);
  screen.presentViewController(alert, true);
  runAfterDelay(seconds, *services().mainQueue,
                screen.guarded([&screen, alert, completion = std::move(completion)] {
                  alert->dismissViewController(true, screen.guarded(completion));
                }));
}

}  // namespace kindora
