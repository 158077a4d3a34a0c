// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "effects/keyframes/CAAnimationDelegate.h"
#include "effects/keyframes/CAKeyframeAnimation.h"
#include "model/Challenge.h"
#include "platform/Subscription.h"
#include "toolkit/controllers/UITabBar.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/view/UIButton.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A challenge that the user has accepted and not yet done. Completing it is a ceremony: a medal
/// flies into the Badges tab, a stamp drops onto the picture, and an alert offers to pass the
/// challenge on. Until then there is no way off the screen.
class InProgressChallengeDetailViewController : public kindora::UIViewController,
                                                public CAAnimationDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UIImageView> imageView;
  std::weak_ptr<UILabel> challengeNameLabel;
  std::weak_ptr<UILabel> challengeDescriptionLabel;
  std::weak_ptr<UIImageView> senderImageView;
  std::weak_ptr<UILabel> senderLabel;
  /// The medal, while it flies.
  UIViewRef medalAnimationView;
  /// Set before the screen is shown; the screen stops without it.
  ChallengeRef challenge;

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
  void viewWillDisappear(bool animated) override;

  /// The storyboard's action of the complete button.
  Q_INVOKABLE void completePressed();
  /// Marks the challenge as completed and begins the ceremony; the button becomes a finished mark.
  void completeChallenge(UIButton& button);
  void deleteChallenge();

  /// See MedalFlight.h.
  [[nodiscard]] CGRect frameForTabInTabBar(const UITabBar& tabBar, int index) const;
  [[nodiscard]] std::shared_ptr<UIBezierPath> bezierPathForFlyFromPoint(CGPoint from, CGPoint to,
                                                                        double peakHeight) const;
  /// The flight, of which this controller hears the end.
  [[nodiscard]] std::shared_ptr<CAKeyframeAnimation> animationForFlyFromPoint(CGPoint from,
                                                                              CGPoint to,
                                                                              double peakHeight);
  /// The medal has arrived: takes it away and raises the number on the Badges tab.
  void animationDidStop(CAKeyframeAnimation& animation, bool finished) override;

 private:
  [[nodiscard]] UITabBarController& tabs() const;
  void freezeNavigation();
  void insertMedal();
  void launchMedal();
  void followPlaces();
  void placesChanged();
  [[nodiscard]] CGPoint medalEnd();
  void dropStamp();
  void askToPassOn();

  std::weak_ptr<UIImageView> stamp_;
  std::vector<Subscription> places_;  // of what the ceremony goes by, while it lasts
  bool frozen_ = false;
};

}  // namespace kindora
