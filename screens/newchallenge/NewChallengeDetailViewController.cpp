// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/newchallenge/NewChallengeDetailViewController.h"

#include "app/RejectAlert.h"
#include "model/ChallengeData.h"
#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "screens/shared/ImageNames.h"
#include "screens/shared/PassingAlert.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIViewAnimation.h"

namespace kindora {
namespace {

constexpr std::size_t kBrushRadius = 50;   // pixels of the cover
constexpr double kRevealProgress = 0.7;    // of the cover; above it the challenge shows
constexpr double kStepSeconds = 0.25;      // each step of the reveal
constexpr double kSpaceAboveButtons = 16;  // points
constexpr double kAcceptedAlertSeconds = 2.5;

}  // namespace

void NewChallengeDetailViewController::connectOutlets() {
  setTitle(tr("New Challenge"));
  UIView& root = *view();
  connectOutlet(senderImageView, "senderImageView", root);
  connectOutlet(senderLabel, "senderLabel", root);
  connectOutlet(imageView, "imageView", root);
  connectOutlet(scratchImageView, "scratchImageView", root);
  connectOutlet(challengeNameLabel, "challengeNameLabel", root)->setAlpha(0);
  connectOutlet(challengeDescriptionLabel, "challengeDescriptionLabel", root)->setAlpha(0);
  std::weak_ptr<UIButton> acceptButton;
  connectOutlet(acceptButton, "acceptButton", root)->setTitle(tr("Accept").toStdString());
  connectOutlet(rejectButton, "rejectButton", root)->setTitle(tr("Reject").toStdString());
  buttons = {acceptButton, rejectButton};
  for (const auto& button : buttons) {
    button.lock()->setAlpha(0);
    button.lock()->setEnabled(false);
  }
  const auto constrain = [&](std::weak_ptr<NSLayoutConstraint>& outlet, NSLayoutAttribute attribute,
                             double constant) {
    auto constraint =
        std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{.firstItem = imageView,
                                                                       .firstAttribute = attribute,
                                                                       .secondItem = view(),
                                                                       .secondAttribute = attribute,
                                                                       .constant = constant});
    outlet = constraint;
    root.addConstraint(std::move(constraint));
  };
  constrain(centerVerticallyConstraint, NSLayoutAttribute::centerY, 0);
  constrain(leftConstraint, NSLayoutAttribute::left, 24);
  constrain(rightConstraint, NSLayoutAttribute::right, -24);
}

void NewChallengeDetailViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  if (!challenge) fatalError("the screen has no challenge");
  view()->layoutIfNeeded();
  const auto scratchView = connected(scratchImageView);
  scratchView->setImage(services().bundle->imageNamed(kCoverImage), kBrushRadius);
  scratchView->setDelegate(
      std::static_pointer_cast<NewChallengeDetailViewController>(shared_from_this()));
  connected(imageView)->setImage(challenge->challengeImage);
  connected(challengeNameLabel)->setText(challenge->title);
  connected(challengeDescriptionLabel)->setText(challenge->description);
  for (const auto& label : {challengeNameLabel, challengeDescriptionLabel}) {
    connected(label)->setAccessibility(UIAccessibilityRole::alert, connected(label)->text());
  }
  const User* sender = challenge->sender.get();
  connected(senderImageView)->setImage(sender != nullptr ? sender->picture : nullptr);
  connected(senderLabel)
      ->setText((sender != nullptr
                     ? tr("%1 challenged you!").arg(QString::fromStdString(sender->name))
                     : tr("Someone challenged you!"))
                    .toStdString());
  scratchView->setShadowOpacity(0.5);
  scratchView->setShadowOffset({0, 3});
}

// --- Scratching ---

void NewChallengeDetailViewController::jxScratchImageView(JxScratchImageView& /*view*/,
                                                          double didChangeMaskingProgress) {
  services().mainQueue->async(guarded(
      [this, didChangeMaskingProgress] { maskingProgressChanged(didChangeMaskingProgress); }));
}

void NewChallengeDetailViewController::maskingProgressChanged(double progress) {
  if (!navigationItem()->hidesBackButton()) {
    navigationItem()->setHidesBackButton(true);
    if (UINavigationController* navigation = navigationController()) {
      navigation->navigationBar()->setNeedsLayout();
    }
  }
  if (progress > kRevealProgress && !doneScratching_) setDoneScratching(true);
}

void NewChallengeDetailViewController::setDoneScratching(bool done) {
  doneScratching_ = done;
  if (done) animateDoneScratching();
}

// --- The reveal: each step starts when the one before has ended ---

void NewChallengeDetailViewController::animateDoneScratching() {
  animateWithDuration(
      {.duration = kStepSeconds}, [this] { connected(scratchImageView)->setAlpha(0); },
      guarded([this] { closeUpLayout(); }));
}

void NewChallengeDetailViewController::closeUpLayout() {
  connected(scratchImageView)->removeFromSuperview();
  UIView& root = *view();
  root.removeConstraint(centerVerticallyConstraint.lock());
  root.addConstraint(std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = connected(rejectButton),
                                .firstAttribute = NSLayoutAttribute::top,
                                .secondItem = connected(challengeDescriptionLabel),
                                .secondAttribute = NSLayoutAttribute::bottom,
                                .multiplier = 1,
                                .constant = kSpaceAboveButtons}));
  animateWithDuration(
      {.duration = kStepSeconds, .delay = 0.5}, [&root] { root.layoutIfNeeded(); },
      guarded([this] { showTexts(); }));
}

void NewChallengeDetailViewController::showTexts() {
  animateWithDuration(
      {.duration = kStepSeconds, .delay = 0.25},
      [this] {
        connected(challengeNameLabel)->setAlpha(1);
        connected(challengeDescriptionLabel)->setAlpha(1);
      },
      guarded([this] { showButtons(); }));
}

void NewChallengeDetailViewController::showButtons() {
  animateWithDuration({.duration = kStepSeconds}, [this] {
    for (const auto& outlet : buttons) {
      const auto button = connected(outlet);
      button->setAlpha(1);
      button->setEnabled(true);
    }
  });
}

// --- Deciding ---

void NewChallengeDetailViewController::accepted() {
  ChallengeData::sharedInstance().acceptChallenge(challenge);
  presentPassingAlert(
      *this, tr("Challenge accepted!").toStdString(),
      tr("This challenge is now in progress. Come back when you've completed it.").toStdString(),
      kAcceptedAlertSeconds, [this] { performSegueWithIdentifier(kUnwind); });
}

void NewChallengeDetailViewController::rejected() {
  presentViewController(rejectAlertForChallenge(*challenge, guarded([this] {
                          ChallengeData::sharedInstance().rejectChallenge(challenge);
                          performSegueWithIdentifier(kUnwind);
                        })),
                        true);
}

}  // namespace kindora
