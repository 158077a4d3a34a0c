// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIButton.h"

#include <gtest/gtest.h>

#include <memory>

namespace kindora {
namespace {

class UIButtonTest : public ::testing::Test {
 protected:
  const std::shared_ptr<UIButton> button = std::make_shared<UIButton>();
  int changes = 0;
  const Subscription subscription = button->observe([this] { ++changes; });
};

TEST_F(UIButtonTest, IsEnabledAtTheStart) {
  EXPECT_TRUE(button->isEnabled());
  EXPECT_EQ(button->title(), "");
}

TEST_F(UIButtonTest, TellsOnceThatItWasDisabled) {
  button->setEnabled(false);
  button->setEnabled(false);
  EXPECT_FALSE(button->isEnabled());
  EXPECT_EQ(changes, 1);
}

TEST_F(UIButtonTest, TellsANewTitleOnce) {
  button->setTitle("Accept");
  button->setTitle("Accept");
  EXPECT_EQ(button->title(), "Accept");
  EXPECT_EQ(changes, 1);
}

TEST_F(UIButtonTest, ShowsNoImageAtTheStart) {
  EXPECT_EQ(button->imageView().image(), nullptr);
  EXPECT_EQ(button->imageView().contentMode(), UIViewContentMode::scaleAspectFill);
}

TEST_F(UIButtonTest, ItsImageIsThatOfItsImageView) {
  const UIImageRef image = UIImage::imageWithRaster(Raster(1, 1));
  button->setImage(image);
  EXPECT_EQ(button->imageView().image(), image);
  button->setImage(nullptr);
  EXPECT_EQ(button->imageView().image(), nullptr);
}

TEST_F(UIButtonTest, TellsWhatChangesInItsImageView) {
  button->setImage(UIImage::imageWithRaster(Raster(1, 1)));
  EXPECT_EQ(changes, 1);
  button->imageView().setContentMode(UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(changes, 2);
  button->imageView().setTintColor(UIColor::yellowColor());
  EXPECT_EQ(changes, 3);
}

TEST_F(UIButtonTest, ItsImageViewIsNoSubview) { EXPECT_TRUE(button->subviews().empty()); }

}  // namespace
}  // namespace kindora
