// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgeInfoViewController.h"

#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "screens/picker/KindoraTableViewController.h"
#include "screens/shared/ImageNames.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UIStoryboard.h"

namespace kindora {

std::string badgeInfoText(const Challenge& challenge) {
  if (challenge.passedOn) {
    const std::int64_t number = challenge.numSincePassedOn;
    if (number == 0) return BadgeInfoViewController::tr("You've passed this on!").toStdString();
    return (number == 1 ? BadgeInfoViewController::tr(
                              "%1 person has completed this challenge since you passed it on!")
                        : BadgeInfoViewController::tr(
                              "%1 people have completed this challenge since you passed it on!"))
        .arg(number)
        .toStdString();
  }
  return (challenge.created
              ? BadgeInfoViewController::tr("You created this challenge!\nNow Kindora to a friend!")
              : BadgeInfoViewController::tr(
                    "You've completed this challenge!\nNow Kindora to a friend!"))
      .toStdString();
}

void BadgeInfoViewController::connectOutlets() {
  UIView& root = *view();
  connectOutlet(infoLabel, "infoLabel", root);
  connectOutlet(imageView, "imageView", root);
  connectOutlet(challengeNameLabel, "challengeNameLabel", root);
  connectOutlet(challengeDescriptionLabel, "challengeDescriptionLabel", root);
  const auto stamp = connectOutlet(stampImageView, "stampImageView", root);
  stamp->setContentMode(UIViewContentMode::scaleAspectFit);
  stamp->setImage(services().bundle->imageNamed(kStampImage));
}

void BadgeInfoViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  if (!challenge) fatalError("the screen has no challenge");
  fill();
}

void BadgeInfoViewController::viewWillAppear(bool animated) {
  UIViewController::viewWillAppear(animated);
  fill();
}

void BadgeInfoViewController::fill() {
  setTitle(QString::fromStdString(challenge->title.value_or("")));
  connected(imageView)->setImage(challenge->challengeImage);
  connected(challengeNameLabel)->setText(challenge->title);
  connected(challengeDescriptionLabel)->setText(challenge->description);
  connected(infoLabel)->setText(badgeInfoText(*challenge));
  // What the user made up was not completed.
  connected(stampImageView)->setHidden(challenge->created);
}

void BadgeInfoViewController::kindoraTapped() { performSegueWithIdentifier(kKindora); }

void BadgeInfoViewController::prepareForSegue(const UIStoryboardSegue& segue,
                                              const std::any& /*sender*/) {
  if (segue.identifier != kKindora) return;
  dynamic_cast<KindoraTableViewController&>(*segue.destinationViewController).challenge = challenge;
}

}  // namespace kindora
