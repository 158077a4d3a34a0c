// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/inprogress/InProgressChallengeDetailViewController.h"

#include "app/RejectAlert.h"
#include "app/RunAfterDelay.h"
#include "effects/qt/LayerAnimations.h"
#include "model/ChallengeData.h"
#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "screens/badges/BadgesTab.h"
#include "screens/badges/PassOnAlert.h"
#include "screens/inprogress/MedalFlight.h"
#include "screens/shared/ImageNames.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

constexpr std::string_view kCompleteButton = "completeButton";
constexpr double kMedalSide = 80;
constexpr double kPeakAboveStart = 100;
constexpr double kFlightSetUpSeconds = 0.75;
constexpr double kStampScale = 1.5;
constexpr double kStampSeconds = 0.2;
constexpr double kStampDelay = 0.5;
constexpr double kAlertDelay = 0.5;
constexpr std::string_view kFlight = "position";  // the property that it moves

}  // namespace

void InProgressChallengeDetailViewController::connectOutlets() {
  UIView& root = *view();
  connectOutlet(senderImageView, "senderImageView", root);
  connectOutlet(senderLabel, "senderLabel", root);
  connectOutlet(imageView, "imageView", root);
  connectOutlet(challengeNameLabel, "challengeNameLabel", root);
  connectOutlet(challengeDescriptionLabel, "challengeDescriptionLabel", root);
  std::weak_ptr<UIButton> completeButton;
  connectOutlet(completeButton, kCompleteButton, root)->setTitle(tr("Complete").toStdString());
  navigationItem()->setRightBarButtonItem(std::make_shared<UIBarButtonItem>(
      tr("Delete"), QStringLiteral("bin"), [this] { deleteChallenge(); }));
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
      ->setText((sender != nullptr
                     ? tr("%1 sent you this challenge.").arg(QString::fromStdString(sender->name))
                     : tr("Someone sent you this challenge."))
                    .toStdString());
  setTitle(QString::fromStdString(challenge->title.value_or("")));
}

void InProgressChallengeDetailViewController::viewWillDisappear(bool animated) {
  if (frozen_) tabs().tabBar()->setUserInteractionEnabled(true);
  frozen_ = false;
  places_.clear();
  UIViewController::viewWillDisappear(animated);
}

UITabBarController& InProgressChallengeDetailViewController::tabs() const {
  UITabBarController* controller = tabBarController();
  if (controller == nullptr) fatalError("the screen is in no tab");
  return *controller;
}

// --- The ceremony ---

void InProgressChallengeDetailViewController::completePressed() {
  completeChallenge(dynamic_cast<UIButton&>(*outlet(kCompleteButton)));
}

void InProgressChallengeDetailViewController::completeChallenge(UIButton& button) {
  ChallengeData::sharedInstance().completeChallenge(challenge);
  freezeNavigation();
  button.setEnabled(false);
  button.setAlpha(0.5);
  button.imageView().setContentMode(UIViewContentMode::scaleAspectFit);
  const UIImageRef checkmark = services().bundle->imageNamed("checkmark");
  button.setImage(checkmark
                      ? checkmark->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate)
                      : nullptr);
  button.setTitle("");
  insertMedal();
  animateWithDuration(
      {.duration = kFlightSetUpSeconds}, [this] { launchMedal(); },
      guarded([this] { dropStamp(); }));
  followPlaces();
}

void InProgressChallengeDetailViewController::freezeNavigation() {
  frozen_ = true;
  tabs().tabBar()->setUserInteractionEnabled(false);
  navigationItem()->setHidesBackButton(true);
  if (UINavigationController* navigation = navigationController()) {
    navigation->navigationBar()->setNeedsLayout();
  }
  navigationItem()->setRightBarButtonItem(nullptr);
}

void InProgressChallengeDetailViewController::insertMedal() {
  const auto card = connected(imageView);
  const auto medal = std::make_shared<UIView>();
  medal->setFrame(card->frame());
  medal->setCornerRadius(theme::kCardRadius);
  medal->setShadowOpacity(0);
  medal->setShadowOffset({0, 3});
  medal->setUserInteractionEnabled(false);

  const auto picture = std::make_shared<UIImageView>();
  picture->setImage(card->image());
  picture->setFillsSuperview(true);
  picture->setFrame(medal->bounds());
  picture->setCornerRadius(theme::kCardRadius);
  picture->setClipsToBounds(true);
  picture->setBackgroundColor(theme::kPictureGround);  // shows when there is no picture
  medal->addSubview(picture);
  view()->insertSubviewAbove(medal, card.get());
  medalAnimationView = medal;
}

void InProgressChallengeDetailViewController::launchMedal() {
  UIView& medal = *medalAnimationView;
  for (const auto& round : {medalAnimationView, medal.subviews().front()}) {
    round->setCornerRadius(kMedalSide / 2);
  }
  medal.setShadowOpacity(0.5);
  medal.setFrame(rectAround(connected(imageView)->center(), {kMedalSide, kMedalSide}));
  const CGPoint start = medal.center();
  addAnimation(medalAnimationView,
               *animationForFlyFromPoint(start, medalEnd(), start.y - kPeakAboveStart), kFlight);
}

CGPoint InProgressChallengeDetailViewController::medalEnd() {
  const UITabBar& bar = *tabs().tabBar();
  return view()->convertPoint(medalDestination(frameForTabInTabBar(bar, kBadgesTab)), bar.view());
}

// The window may change its size during the ceremony: then picture and tab are elsewhere.
void InProgressChallengeDetailViewController::followPlaces() {
  UITabBar& bar = *tabs().tabBar();
  std::vector<UIViewRef> marks = bar.outlet("tabBar")->subviews();
  marks.insert(marks.end(), {bar.outlet("tabBar"), connected(imageView), view()});
  for (const auto& mark : marks) {
    places_.push_back(mark->observeLayout([this] { placesChanged(); }));
  }
}

void InProgressChallengeDetailViewController::placesChanged() {
  const auto card = connected(imageView);
  if (const auto stamp = stamp_.lock()) stamp->reportFrame(card->frame());
  // The screen may have been left meanwhile.
  if (!medalAnimationView || tabBarController() == nullptr) return;
  const CGPoint start = card->center();
  redirectAnimationForKey(*medalAnimationView, kFlight,
                          bezierPathForFlyFromPoint(start, medalEnd(), start.y - kPeakAboveStart));
}

CGRect InProgressChallengeDetailViewController::frameForTabInTabBar(const UITabBar& tabBar,
                                                                    int index) const {
  return kindora::frameForTabInTabBar(tabBar.view(), index);
}

std::shared_ptr<UIBezierPath> InProgressChallengeDetailViewController::bezierPathForFlyFromPoint(
    CGPoint from, CGPoint to, double peakHeight) const {
  return kindora::bezierPathForFlyFromPoint(from, to, peakHeight);
}

std::shared_ptr<CAKeyframeAnimation>
InProgressChallengeDetailViewController::animationForFlyFromPoint(CGPoint from, CGPoint to,
                                                                  double peakHeight) {
  auto animation = kindora::animationForFlyFromPoint(from, to, peakHeight);
  animation->setDelegate(
      std::static_pointer_cast<InProgressChallengeDetailViewController>(shared_from_this()));
  return animation;
}

void InProgressChallengeDetailViewController::animationDidStop(CAKeyframeAnimation& /*animation*/,
                                                               bool /*finished*/) {
  if (medalAnimationView) medalAnimationView->removeFromSuperview();
  medalAnimationView = nullptr;
  // The screen may have been left meanwhile.
  const UITabBarController* controller = tabBarController();
  if (controller == nullptr || controller->viewControllers().size() <= kBadgesTab) return;
  UITabBarItem& badges = *controller->viewControllers()[kBadgesTab]->tabBarItem();
  const std::string value = badges.badgeValue().toStdString();
  badges.setBadgeValue(QString::fromStdString(raisedBadgeValue(value)));
}

void InProgressChallengeDetailViewController::dropStamp() {
  const auto stamp = std::make_shared<UIImageView>();
  stamp->setImage(services().bundle->imageNamed(kStampImage));
  stamp->setContentMode(UIViewContentMode::scaleAspectFit);
  stamp->setAccessibility(UIAccessibilityRole::alert, tr("Completed").toStdString());
  stamp->setFrame(connected(imageView)->frame());
  stamp->setScaling(kStampScale);
  stamp->setAlpha(0);
  view()->addSubview(stamp);
  stamp_ = stamp;
  animateWithDuration(
      {.duration = kStampSeconds, .delay = kStampDelay, .curve = UIViewAnimationCurve::easeIn},
      [&stamp] {
        stamp->setScaling(1);
        stamp->setAlpha(1);
      },
      guarded([this] { askToPassOn(); }));
}

void InProgressChallengeDetailViewController::askToPassOn() {
  const auto alert =
      passOnAlert(tr("Congrats!").toStdString(),
                  tr("Would you like to pass this challenge on to a friend?").toStdString(),
                  challenge, guarded([this] { performSegueWithIdentifier(kUnwind); }));
  runAfterDelay(kAlertDelay, *services().mainQueue,
                guarded([this, alert] { presentViewController(alert, true); }));
}

// --- Deleting ---

void InProgressChallengeDetailViewController::deleteChallenge() {
  presentViewController(rejectAlertForChallenge(*challenge, guarded([this] {
                          ChallengeData::sharedInstance().removeInProgressChallenge(challenge);
                          performSegueWithIdentifier(kUnwind);
                        })),
                        true);
}

}  // namespace kindora
