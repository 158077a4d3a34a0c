// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/PassOnAlert.h"

#include "screens/badges/PassOnFromBadges.h"

namespace kindora {

std::shared_ptr<UIAlertController> passOnAlert(const std::string& title, const std::string& message,
                                               const ChallengeRef& challenge,
                                               const std::function<void()>& leave) {
  auto alert = makeViewController<UIAlertController>(title, message, UIAlertControllerStyle::alert);
  alert->addAction(
      {UIAlertController::tr("Later").toStdString(), UIAlertActionStyle::cancel, leave});
  alert->addAction({UIAlertController::tr("Kindora!").toStdString(), UIAlertActionStyle::normal,
                    [challenge, leave] {
                      passOnFromBadges(challenge);
                      leave();
                    }});
  return alert;
}

}  // namespace kindora
