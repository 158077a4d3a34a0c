// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "effects/scratch/JxScratchImageView.h"
#include "model/Challenge.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIButton.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A new challenge under its cover. Once most of the cover is scratched away the challenge shows,
/// and the user accepts or rejects it. From the first scratch on there is no way back without
/// deciding.
class NewChallengeDetailViewController : public kindora::UIViewController,
                                         public JxScratchImageViewDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UIImageView> imageView;
  std::weak_ptr<JxScratchImageView> scratchImageView;
  std::weak_ptr<NSLayoutConstraint> centerVerticallyConstraint;
  std::weak_ptr<NSLayoutConstraint> leftConstraint;
  std::weak_ptr<NSLayoutConstraint> rightConstraint;
  std::weak_ptr<UILabel> challengeNameLabel;
  std::weak_ptr<UILabel> challengeDescriptionLabel;
  std::weak_ptr<UIImageView> senderImageView;
  std::weak_ptr<UILabel> senderLabel;
  std::weak_ptr<UIButton> rejectButton;
  std::vector<std::weak_ptr<UIButton>> buttons;
  /// Set before the screen is shown; the screen stops without it.
  ChallengeRef challenge;

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;

  /// Schedules the reaction on the main queue; may be called anywhere.
  void jxScratchImageView(JxScratchImageView& view, double didChangeMaskingProgress) override;

  [[nodiscard]] bool doneScratching() const { return doneScratching_; }
  /// Every true starts the reveal.
  void setDoneScratching(bool done);
  void animateDoneScratching();

  Q_INVOKABLE void accepted();
  Q_INVOKABLE void rejected();

 private:
  void maskingProgressChanged(double progress);
  void closeUpLayout();
  void showTexts();
  void showButtons();

  bool doneScratching_ = false;
};

}  // namespace kindora
