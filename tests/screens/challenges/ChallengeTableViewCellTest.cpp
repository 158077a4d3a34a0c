// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/challenges/ChallengeTableViewCell.h"

#include <gtest/gtest.h>

#include <array>

namespace kindora {
namespace {

UIImageRef whitePicture() {
  const std::array<Rgba8, 4> pixels{
      {{255, 255, 255, 255}, {255, 255, 255, 255}, {255, 255, 255, 255}, {255, 255, 255, 255}}};
  return UIImage::imageWithRaster(Raster(2, 2, pixels));
}

std::shared_ptr<ChallengeTableViewCell> madeCell() {
  auto cell = ChallengeTableViewCell::fromPrototype();
  cell->awakeFromNib();
  return cell;
}

UIImageRef shownPicture(const ChallengeTableViewCell& cell) {
  return cell.profileImageView.lock()->image();
}

UIViewRef frameOf(const ChallengeTableViewCell& cell) {
  return cell.profileImageView.lock()->superview();
}

TEST(ChallengeTableViewCell, ThePrototypeConnectsItsOutlets) {
  const auto cell = ChallengeTableViewCell::fromPrototype();
  EXPECT_EQ(cell->outlet("profileImageView"), cell->profileImageView.lock());
  EXPECT_EQ(cell->outlet("challengeLabel"), cell->challengeLabel.lock());
  EXPECT_EQ(cell->outlet("senderLabel"), cell->senderLabel.lock());
}

TEST(ChallengeTableViewCell, OutletsAreHeldWeakly) {
  auto cell = ChallengeTableViewCell::fromPrototype();
  const auto label = cell->challengeLabel;
  EXPECT_FALSE(label.expired());
  cell.reset();
  EXPECT_TRUE(label.expired());
}

TEST(ChallengeTableViewCell, KeepsAndShowsThePicture) {
  const auto cell = madeCell();
  const UIImageRef picture = whitePicture();
  cell->setProfileImage(picture);
  EXPECT_EQ(cell->profileImage(), picture);
  EXPECT_EQ(shownPicture(*cell), picture);
}

TEST(ChallengeTableViewCell, AnAbsentPictureClearsTheOneBefore) {
  const auto cell = madeCell();
  cell->setProfileImage(whitePicture());
  cell->setProfileImage(nullptr);
  EXPECT_EQ(cell->profileImage(), nullptr);
  EXPECT_EQ(shownPicture(*cell), nullptr);
}

TEST(ChallengeTableViewCell, ShowsTheMainText) {
  const auto cell = madeCell();
  cell->setMainText("Hug Challenge");
  EXPECT_EQ(cell->challengeLabel.lock()->text(), "Hug Challenge");
}

TEST(ChallengeTableViewCell, ShowsTheSmallText) {
  const auto cell = madeCell();
  cell->setSmallText("From: Your Boss");
  EXPECT_EQ(cell->senderLabel.lock()->text(), "From: Your Boss");
}

TEST(ChallengeTableViewCell, AbsentTextsClearTheirLabels) {
  const auto cell = madeCell();
  cell->setMainText("Hug Challenge");
  cell->setSmallText("From: Your Boss");
  cell->setMainText(std::nullopt);
  cell->setSmallText(std::nullopt);
  EXPECT_EQ(cell->challengeLabel.lock()->text(), std::nullopt);
  EXPECT_EQ(cell->senderLabel.lock()->text(), std::nullopt);
}

TEST(ChallengeTableViewCell, TheFrameIsDrawnThroughABitmapAtTheScreensScale) {
  const auto cell = madeCell();
  EXPECT_TRUE(frameOf(*cell)->shouldRasterize());
  EXPECT_EQ(frameOf(*cell)->rasterizationScale(), 1);
}

TEST(ChallengeTableViewCell, TheShadowIsRoundForASquareFrame) {
  const auto cell = ChallengeTableViewCell::fromPrototype();
  frameOf(*cell)->setFrame({{10, 10}, {60, 60}});
  cell->awakeFromNib();
  EXPECT_EQ(frameOf(*cell)->shadowPathRadius(), 30);
}

TEST(ChallengeTableViewCell, RestsAboveItsShadow) {
  const auto cell = madeCell();
  EXPECT_EQ(frameOf(*cell)->state().shadowOpacity, 0.5);
  EXPECT_EQ(frameOf(*cell)->state().shadowOffset, (CGSize{0, 3}));
  EXPECT_EQ(frameOf(*cell)->state().translation, (CGPoint{0, 0}));
}

TEST(ChallengeTableViewCell, SinksOntoItsShadowWhenPressed) {
  const auto cell = madeCell();
  cell->setHighlighted(true, true);
  EXPECT_TRUE(cell->isHighlighted());
  EXPECT_EQ(frameOf(*cell)->state().shadowOpacity, 0.25);
  EXPECT_EQ(frameOf(*cell)->state().shadowOffset, (CGSize{0, 1}));
  EXPECT_EQ(frameOf(*cell)->state().translation, (CGPoint{0, 2.5}));
}

TEST(ChallengeTableViewCell, RisesAgainWhenLetGo) {
  const auto cell = madeCell();
  cell->setHighlighted(true, true);
  cell->setHighlighted(false, true);
  EXPECT_FALSE(cell->isHighlighted());
  EXPECT_EQ(frameOf(*cell)->state().shadowOpacity, 0.5);
  EXPECT_EQ(frameOf(*cell)->state().shadowOffset, (CGSize{0, 3}));
  EXPECT_EQ(frameOf(*cell)->state().translation, (CGPoint{0, 0}));
}

TEST(ChallengeTableViewCell, DarkensThePictureByAQuarterWhilePressed) {
  const auto cell = madeCell();
  const UIImageRef picture = whitePicture();
  cell->setProfileImage(picture);
  cell->setHighlighted(true, false);
  ASSERT_NE(shownPicture(*cell), nullptr);
  const Rgba8 pixel = shownPicture(*cell)->raster().pixel(0, 0);
  EXPECT_NEAR(pixel.red, 255 * 0.75, 1);
  EXPECT_NEAR(pixel.green, 255 * 0.75, 1);
  EXPECT_NEAR(pixel.blue, 255 * 0.75, 1);
  EXPECT_EQ(pixel.alpha, 255);
  EXPECT_EQ(cell->profileImage(), picture);
}

TEST(ChallengeTableViewCell, ShowsThePlainPictureAgainWhenLetGo) {
  const auto cell = madeCell();
  const UIImageRef picture = whitePicture();
  cell->setProfileImage(picture);
  cell->setHighlighted(true, false);
  cell->setHighlighted(false, false);
  EXPECT_EQ(shownPicture(*cell), picture);
}

TEST(ChallengeTableViewCell, PressedTwiceItIsNotDarkenedTwice) {
  const auto cell = madeCell();
  cell->setProfileImage(whitePicture());
  cell->setHighlighted(true, false);
  cell->setHighlighted(true, false);
  EXPECT_NEAR(shownPicture(*cell)->raster().pixel(0, 0).red, 255 * 0.75, 1);
}

TEST(ChallengeTableViewCell, WithoutAPictureThereIsNothingToDarken) {
  const auto cell = madeCell();
  cell->setHighlighted(true, false);
  EXPECT_EQ(shownPicture(*cell), nullptr);
  EXPECT_EQ(frameOf(*cell)->state().translation, (CGPoint{0, 2.5}));
}

TEST(ChallengeTableViewCellDeathTest, AnUnconnectedPictureStopsItsWaking) {
  ChallengeTableViewCell cell;
  EXPECT_DEATH(cell.awakeFromNib(), "fatal error: an outlet is not connected");
}

TEST(ChallengeTableViewCellDeathTest, AnUnconnectedPictureStopsWhenItIsSet) {
  ChallengeTableViewCell cell;
  EXPECT_DEATH(cell.setProfileImage(nullptr), "fatal error: an outlet is not connected");
}

TEST(ChallengeTableViewCellDeathTest, AnUnconnectedLabelStopsWhenItsTextIsSet) {
  ChallengeTableViewCell cell;
  EXPECT_DEATH(cell.setMainText("text"), "fatal error: an outlet is not connected");
  EXPECT_DEATH(cell.setSmallText(std::nullopt), "fatal error: an outlet is not connected");
}

}  // namespace
}  // namespace kindora
