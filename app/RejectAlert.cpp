// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/RejectAlert.h"

#include <utility>

namespace kindora {

std::shared_ptr<UIAlertController> rejectAlertForChallenge(const Challenge& challenge,
                                                           std::function<void()> onReject,
                                                           std::function<void()> onNeverMind) {
  const QString who = challenge.sender ? QString::fromStdString(challenge.sender->name)
                                       : UIAlertController::tr("The sender");
  auto alert = makeViewController<UIAlertController>(
      UIAlertController::tr("Reject \"%1\"?")
          .arg(QString::fromStdString(challenge.title.value_or("")))
          .toStdString(),
      UIAlertController::tr("%1 will be so disappointed.").arg(who).toStdString(),
      UIAlertControllerStyle::alert);
  alert->addAction({UIAlertController::tr("Reject").toStdString(), UIAlertActionStyle::destructive,
                    std::move(onReject)});
  alert->addAction({UIAlertController::tr("Never Mind").toStdString(), UIAlertActionStyle::cancel,
                    std::move(onNeverMind)});
  return alert;
}

}  // namespace kindora
