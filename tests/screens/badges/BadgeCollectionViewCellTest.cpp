// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgeCollectionViewCell.h"

#include <gtest/gtest.h>

#include <vector>

#include "toolkit/controllers/Screen.h"

namespace kindora {
namespace {

class BadgeCollectionViewCellTest : public ::testing::Test {
 protected:
  BadgeCollectionViewCellTest() {
    const std::vector<Rgba8> pixels(4, Rgba8{200, 100, 40, 255});
    challenge->title = "Smile";
    challenge->challengeImage = UIImage::imageWithRaster(Raster(2, 2, pixels));
    cell->awakeFromNib();
    cell->setChallenge(challenge);
  }

  [[nodiscard]] UIImageRef picture() const { return cell->badgeImageView.lock()->image(); }
  [[nodiscard]] Rgba8 pixel() const { return picture()->raster().pixel(1, 1); }
  [[nodiscard]] const UIView& container() const { return *cell->imageContainerView.lock(); }
  [[nodiscard]] std::optional<UIColor> textColor() const {
    return cell->badgeLabel.lock()->textColor();
  }
  void press() { cell->setHighlighted(true, true); }
  void letGo() { cell->setHighlighted(false, true); }

  const ChallengeRef challenge = std::make_shared<Challenge>();
  const std::shared_ptr<BadgeCollectionViewCell> cell = BadgeCollectionViewCell::fromPrototype();
};

TEST_F(BadgeCollectionViewCellTest, ThePrototypeConnectsItsOutlets) {
  EXPECT_EQ(cell->outlet("badgeImageView"), cell->badgeImageView.lock());
  EXPECT_EQ(cell->outlet("imageContainerView"), cell->imageContainerView.lock());
  EXPECT_EQ(cell->outlet("badgeLabel"), cell->badgeLabel.lock());
  EXPECT_NE(cell->badgeLabel.lock(), nullptr);
}

TEST_F(BadgeCollectionViewCellTest, ThePictureLiesInItsContainer) {
  EXPECT_EQ(cell->badgeImageView.lock()->superview(), cell->imageContainerView.lock());
}

TEST_F(BadgeCollectionViewCellTest, ShowsPictureAndTitle) {
  EXPECT_EQ(cell->challenge(), challenge);
  EXPECT_EQ(picture(), challenge->challengeImage);
  EXPECT_EQ(cell->badgeLabel.lock()->text(), "Smile");
}

TEST_F(BadgeCollectionViewCellTest, AbsentPictureAndTitleClearThoseBefore) {
  cell->setChallenge(std::make_shared<Challenge>());
  EXPECT_EQ(picture(), nullptr);
  EXPECT_EQ(cell->badgeLabel.lock()->text(), std::nullopt);
}

TEST_F(BadgeCollectionViewCellTest, NoChallengeClearsTheOneBefore) {
  cell->setChallenge(nullptr);
  EXPECT_EQ(picture(), nullptr);
  EXPECT_EQ(cell->badgeLabel.lock()->text(), std::nullopt);
}

TEST_F(BadgeCollectionViewCellTest, TheShadowIsDrawnThroughABitmapAtTheScreensScale) {
  EXPECT_TRUE(container().shouldRasterize());
  EXPECT_EQ(container().rasterizationScale(), mainScreenScale());
}

TEST_F(BadgeCollectionViewCellTest, TheShadowIsThatOfARoundedRectangle) {
  EXPECT_GT(container().shadowPathRadius(), 0);
}

TEST_F(BadgeCollectionViewCellTest, RestsAboveItsShadow) {
  EXPECT_EQ(container().state().shadowOpacity, 0.5);
  EXPECT_EQ(container().state().translation, (CGPoint{0, 0}));
  EXPECT_EQ(textColor(), UIColor::blackColor());
}

TEST_F(BadgeCollectionViewCellTest, SinksOntoItsShadowWhenPressed) {
  press();
  EXPECT_TRUE(cell->isHighlighted());
  EXPECT_EQ(container().state().shadowOpacity, 0.25);
  EXPECT_EQ(container().state().translation, (CGPoint{0, 2.5}));
}

TEST_F(BadgeCollectionViewCellTest, ItsTitleIsGreyWhilePressed) {
  press();
  ASSERT_TRUE(textColor());
  EXPECT_EQ(*textColor(), (UIColor{0.5, 0.5, 0.5, 1}));
}

TEST_F(BadgeCollectionViewCellTest, DarkensThePictureByAQuarterWhilePressed) {
  press();
  EXPECT_NE(picture(), challenge->challengeImage);
  EXPECT_NEAR(pixel().red, 150, 1);
  EXPECT_NEAR(pixel().green, 75, 1);
  EXPECT_NEAR(pixel().blue, 30, 1);
  EXPECT_EQ(pixel().alpha, 255);
}

TEST_F(BadgeCollectionViewCellTest, RisesAgainWhenLetGo) {
  press();
  letGo();
  EXPECT_FALSE(cell->isHighlighted());
  EXPECT_EQ(picture(), challenge->challengeImage);
  EXPECT_EQ(container().state().shadowOpacity, 0.5);
  EXPECT_EQ(container().state().translation, (CGPoint{0, 0}));
  EXPECT_EQ(textColor(), UIColor::blackColor());
}

TEST_F(BadgeCollectionViewCellTest, PressedTwiceItIsNotDarkenedTwice) {
  press();
  press();
  EXPECT_NEAR(pixel().red, 150, 1);
}

TEST_F(BadgeCollectionViewCellTest, AnotherBadgeInAPressedCellIsDarkenedToo) {
  press();
  const ChallengeRef another = std::make_shared<Challenge>();
  another->challengeImage = challenge->challengeImage;
  cell->setChallenge(another);
  EXPECT_NEAR(pixel().red, 150, 1);
}

TEST_F(BadgeCollectionViewCellTest, WithoutAPictureThereIsNothingToDarken) {
  cell->setChallenge(std::make_shared<Challenge>());
  press();
  EXPECT_EQ(picture(), nullptr);
  EXPECT_EQ(container().state().shadowOpacity, 0.25);
}

TEST_F(BadgeCollectionViewCellTest, AForgottenOutletStops) {
  BadgeCollectionViewCell bare;
  EXPECT_DEATH(bare.awakeFromNib(), "fatal error: an outlet is not connected");
}

}  // namespace
}  // namespace kindora
