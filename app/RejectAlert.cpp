// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/RejectAlert.h"

#include <utility>

namespace kindora {

std::shared_ptr<UIAlertController> rejectAlertForChallenge(const Challenge& challenge,
                                                           std::function<void()> onReject,
                                                           std::function<void()> onNeverMind) {
  const std::string who = challenge.sender ? challenge.sender->name : "The sender";
  auto alert = makeViewController<UIAlertController>(
      "Reject \"" + challenge.title.value_or("") + "\"?", who + " will be so disappointed.",
      UIAlertControllerStyle::alert);
  alert->addAction({"Reject", UIAlertActionStyle::destructive, std::move(onReject)});
  alert->addAction({"Never Mind", UIAlertActionStyle::cancel, std::move(onNeverMind)});
  return alert;
}

}  // namespace kindora
