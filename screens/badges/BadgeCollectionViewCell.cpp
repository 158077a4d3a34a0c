// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgeCollectionViewCell.h"

#include "screens/shared/PressedLook.h"
#include "toolkit/controllers/Screen.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

constexpr UIColor kGray{0.5, 0.5, 0.5, 1};

}  // namespace

std::shared_ptr<BadgeCollectionViewCell> BadgeCollectionViewCell::fromPrototype() {
  auto cell = std::make_shared<BadgeCollectionViewCell>();
  const auto container =
      connectOutlet(cell->imageContainerView, "imageContainerView", cell->contentView());
  container->setShadowOffset({0, 3});
  connectOutlet(cell->badgeImageView, "badgeImageView", *container);
  connectOutlet(cell->badgeLabel, "badgeLabel", cell->contentView());
  return cell;
}

void BadgeCollectionViewCell::awakeFromNib() {
  UICollectionViewCell::awakeFromNib();
  const auto container = connected(imageContainerView);
  container->setShouldRasterize(true, mainScreenScale());
  container->setShadowPathRadius(theme::kTileRadius);
  setHighlighted(false, false);
}

void BadgeCollectionViewCell::setChallenge(const ChallengeRef& challenge) {
  challenge_ = challenge;
  connected(badgeLabel)->setText(challenge ? challenge->title : std::nullopt);
  setHighlighted(isHighlighted(), false);
}

void BadgeCollectionViewCell::setHighlighted(bool highlighted, bool animated) {
  UICollectionViewCell::setHighlighted(highlighted, animated);
  const UIImageRef picture = challenge_ ? challenge_->challengeImage : nullptr;
  connected(badgeImageView)->setImage(pressedPicture(picture, highlighted));
  sinkFrame(*connected(imageContainerView), highlighted);
  connected(badgeLabel)->setTextColor(highlighted ? kGray : UIColor::blackColor());
}

}  // namespace kindora
