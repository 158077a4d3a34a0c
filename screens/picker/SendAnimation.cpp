// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/picker/SendAnimation.h"

#include "platform/services/Services.h"
#include "screens/shared/ImageNames.h"
#include "toolkit/controllers/Screen.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

constexpr CGSize kCardSize{250, 250};
constexpr double kDimming = 0.25;  // alpha of the black behind the card

// Where the card is at the end of each step: its size, and how far it is from the centre.
constexpr double kStartScale = 0.5;
constexpr double kPackedScale = 0.8;
constexpr double kWindUp = 36;  // points down, before it flies up

}  // namespace

SendAnimation::SendAnimation(std::function<void()> completion)
    : completion_(std::move(completion)) {}

void SendAnimation::run(const UIViewRef& over, const UIImageRef& picture,
                        std::function<void()> completion) {
  const std::shared_ptr<SendAnimation> animation(new SendAnimation(std::move(completion)));
  animation->build(*over, picture);
  animation->settle();
}

void SendAnimation::build(UIView& over, const UIImageRef& picture) {
  overlay_ = std::make_shared<UIView>();
  overlay_->setFrame(over.bounds());
  overlay_->setFillsSuperview(true);
  overlay_->setBackgroundColor(UIColor::blackColor().colorWithAlphaComponent(0));

  // Another size of the window moves the stage and leaves the card to its animations.
  stage_ = std::make_shared<UIView>();
  stage_->setFrame(rectAround(centerOf(overlay_->bounds()), kCardSize));
  overlayChanged_ = overlay_->observe([this] { stage_->setCenter(centerOf(overlay_->bounds())); });

  card_ = std::make_shared<UIView>();
  card_->setFrame(stage_->bounds());
  card_->setCornerRadius(theme::kCardRadius);
  card_->setShadowOpacity(0.5);
  card_->setShadowOffset({0, 3});
  card_->setShouldRasterize(true, mainScreenScale());
  card_->setScaling(kStartScale);
  card_->setTranslation({0, overlay_->bounds().size.height / 2 + kCardSize.height});

  container_ = std::make_shared<UIView>();
  container_->setFrame(card_->bounds());
  container_->setCornerRadius(theme::kCardRadius);
  container_->setClipsToBounds(true);
  const auto image = std::make_shared<UIImageView>();
  image->setFrame(container_->bounds());
  image->setClipsToBounds(true);
  image->setBackgroundColor(UIColor::whiteColor());
  image->setImage(picture);
  picture_ = image;

  container_->addSubview(picture_);
  card_->addSubview(container_);
  stage_->addSubview(card_);
  overlay_->addSubview(stage_);
  over.addSubview(overlay_);
}

void SendAnimation::settle() {
  animateWithDuration({.duration = 0.5}, [this] {
    overlay_->setBackgroundColor(UIColor::blackColor().colorWithAlphaComponent(kDimming));
  });
  animateWithDuration(
      {.duration = 1, .spring = UISpring{.dampingRatio = 0.75}},
      [this] {
        card_->setScaling(1);
        card_->setTranslation({0, 0});
      },
      [self = shared_from_this()] { self->wrap(); });
}

void SendAnimation::wrap() {
  const auto cover = std::make_shared<UIImageView>();
  cover->setFrame(container_->bounds());
  cover->setImage(services().bundle->imageNamed(kCoverImage));
  transitionFromView(picture_, cover, 1, [self = shared_from_this()] { self->pack(); });
}

void SendAnimation::pack() {
  animateWithDuration(
      {.duration = 1, .delay = 0.25, .spring = UISpring{.dampingRatio = 0.5}},
      [this] { card_->setScaling(kPackedScale); },
      [self = shared_from_this()] { self->gatherWay(); });
}

void SendAnimation::gatherWay() {
  animateWithDuration(
      {.duration = 0.2},
      [this] {
        card_->setTranslation({0, kWindUp});
      },
      [self = shared_from_this()] { self->flyAway(); });
}

void SendAnimation::flyAway() {
  animateWithDuration(
      {.duration = 1.5, .spring = UISpring{.dampingRatio = 1, .initialVelocity = 10}},
      [this] {
        card_->setTranslation({0, -overlay_->bounds().size.height / 2 - kCardSize.height});
        overlay_->setBackgroundColor(UIColor::blackColor().colorWithAlphaComponent(0));
      },
      [self = shared_from_this()] { self->end(); });
}

void SendAnimation::end() {
  overlay_->removeFromSuperview();
  completion_();
}

}  // namespace kindora
