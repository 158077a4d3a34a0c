// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/challenges/ChallengeTableViewCell.h"

#include "screens/shared/PressedLook.h"
#include "toolkit/controllers/Screen.h"

namespace kindora {
namespace {

constexpr double kPictureSide = 52;  // points

}  // namespace

std::shared_ptr<ChallengeTableViewCell> ChallengeTableViewCell::fromPrototype() {
  auto cell = std::make_shared<ChallengeTableViewCell>();
  std::weak_ptr<UIView> frame;
  connectOutlet(frame, "profileFrame", cell->contentView());
  frame.lock()->setFrame({{0, 0}, {kPictureSide, kPictureSide}});
  connectOutlet(cell->profileImageView, "profileImageView", *frame.lock());
  connectOutlet(cell->challengeLabel, "challengeLabel", cell->contentView());
  connectOutlet(cell->senderLabel, "senderLabel", cell->contentView());
  return cell;
}

UIViewRef ChallengeTableViewCell::pictureFrame() const {
  return connected(profileImageView)->superview();
}

void ChallengeTableViewCell::setProfileImage(const UIImageRef& image) {
  profileImage_ = image;
  connected(profileImageView)->setImage(image);
}

void ChallengeTableViewCell::setMainText(const std::optional<std::string>& text) {
  connected(challengeLabel)->setText(text);
}

void ChallengeTableViewCell::setSmallText(const std::optional<std::string>& text) {
  connected(senderLabel)->setText(text);
}

void ChallengeTableViewCell::awakeFromNib() {
  UITableViewCell::awakeFromNib();
  const auto frame = pictureFrame();
  frame->setShouldRasterize(true, mainScreenScale());
  frame->setShadowPathRadius(frame->bounds().size.width / 2);
  setHighlighted(false, false);
}

void ChallengeTableViewCell::setHighlighted(bool highlighted, bool animated) {
  UITableViewCell::setHighlighted(highlighted, animated);
  if (profileImage_) {
    connected(profileImageView)->setImage(pressedPicture(profileImage_, highlighted));
  }
  const auto frame = pictureFrame();
  sinkFrame(*frame, highlighted);
  frame->setShadowOffset({0, highlighted ? 1.0 : 3.0});
}

}  // namespace kindora
