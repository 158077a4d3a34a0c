// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"
#include "platform/qt/toolkit/UIViewController.h"
#include "platform/view/UIImageView.h"
#include "platform/view/UILabel.h"

namespace kindora {

/// A challenge that the user has accepted and not yet done.
class InProgressChallengeDetailViewController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UIImageView> imageView;
  std::weak_ptr<UILabel> challengeNameLabel;
  std::weak_ptr<UILabel> challengeDescriptionLabel;
  std::weak_ptr<UIImageView> senderImageView;
  std::weak_ptr<UILabel> senderLabel;
  /// Set before the screen is shown; the screen stops without it.
  ChallengeRef challenge;

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
};

}  // namespace kindora
