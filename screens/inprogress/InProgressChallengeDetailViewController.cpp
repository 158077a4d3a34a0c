// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/inprogress/InProgressChallengeDetailViewController.h"

#include "platform/FatalError.h"

namespace kindora {

void InProgressChallengeDetailViewController::connectOutlets() {
  UIView& root = *view();
  connectOutlet(senderImageView, "senderImageView", root);
  connectOutlet(senderLabel, "senderLabel", root);
  connectOutlet(imageView, "imageView", root);
  connectOutlet(challengeNameLabel, "challengeNameLabel", root);
  connectOutlet(challengeDescriptionLabel, "challengeDescriptionLabel", root);
}

void InProgressChallengeDetailViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  if (!challenge) fatalError("the screen has no challenge");
  connected(imageView)->setImage(challenge->challengeImage);
  connected(challengeNameLabel)->setText(challenge->title);
  connected(challengeDescriptionLabel)->setText(challenge->description);
  const User* sender = challenge->sender.get();
  connected(senderImageView)->setImage(sender != nullptr ? sender->picture : nullptr);
  connected(senderLabel)
      ->setText(sender != nullptr ? sender->name + " sent you this challenge."
                                  : "Someone sent you this challenge.");
  setTitle(QString::fromStdString(challenge->title.value_or("")));
}

}  // namespace kindora
