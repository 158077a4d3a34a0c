// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"
#include "toolkit/controllers/UICollectionViewCell.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A badge in the grid: the challenge's picture, which sinks onto its shadow when pressed, above
/// the challenge's title.
class BadgeCollectionViewCell : public kindora::UICollectionViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UIImageView> badgeImageView;
  std::weak_ptr<UIView> imageContainerView;
  std::weak_ptr<UILabel> badgeLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<BadgeCollectionViewCell> fromPrototype();

  [[nodiscard]] const ChallengeRef& challenge() const { return challenge_; }
  /// Shows picture and title, either of which may be absent.
  void setChallenge(const ChallengeRef& challenge);

  void awakeFromNib() override;
  void setHighlighted(bool highlighted, bool animated) override;

 private:
  ChallengeRef challenge_;
};

}  // namespace kindora
