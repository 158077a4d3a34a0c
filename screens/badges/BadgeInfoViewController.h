// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "model/Challenge.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A badge's page: what the user did with the challenge, and the way to pass it on.
class BadgeInfoViewController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UILabel> infoLabel;
  std::weak_ptr<UIImageView> imageView;
  std::weak_ptr<UILabel> challengeNameLabel;
  std::weak_ptr<UILabel> challengeDescriptionLabel;
  std::weak_ptr<UIImageView> stampImageView;
  /// Set before the screen is shown; the screen stops without it.
  ChallengeRef challenge;

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
  /// Fills the page again, since the challenge may have been passed on meanwhile.
  void viewWillAppear(bool animated) override;
  Q_INVOKABLE void kindoraTapped();
  void prepareForSegue(const UIStoryboardSegue& segue, const std::any& sender) override;

  /// Where the picker's screens come back to.
  void unwindToBadgeInfo(const UIStoryboardSegue& /*segue*/) {}

 private:
  void fill();
};

/// What the user did with the challenge, in one or two lines.
[[nodiscard]] std::string badgeInfoText(const Challenge& challenge);

}  // namespace kindora
