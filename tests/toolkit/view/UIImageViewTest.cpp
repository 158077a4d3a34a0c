// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIImageView.h"

#include <gtest/gtest.h>

#include <memory>

namespace kindora {
namespace {

class UIImageViewTest : public ::testing::Test {
 protected:
  static UIImageRef picture() { return UIImage::imageWithRaster(Raster(1, 1)); }

  const std::shared_ptr<UIImageView> view = std::make_shared<UIImageView>();
  int changes = 0;
  const Subscription subscription = view->observe([this] { ++changes; });
};

TEST_F(UIImageViewTest, ShowsNothingAtTheStart) { EXPECT_EQ(view->image(), nullptr); }

TEST_F(UIImageViewTest, TakesNoTouchesUnlessToldTo) {
  EXPECT_FALSE(view->isUserInteractionEnabled());
  view->setUserInteractionEnabled(true);
  EXPECT_TRUE(view->isUserInteractionEnabled());
}

TEST_F(UIImageViewTest, TellsANewImageOnce) {
  const UIImageRef image = picture();
  view->setImage(image);
  view->setImage(image);
  EXPECT_EQ(view->image(), image);
  EXPECT_EQ(changes, 1);
}

TEST_F(UIImageViewTest, ALikeImageIsAnotherImage) {
  view->setImage(picture());
  view->setImage(picture());
  EXPECT_EQ(changes, 2);
}

TEST_F(UIImageViewTest, NoImageClearsTheView) {
  view->setImage(picture());
  view->setImage(nullptr);
  EXPECT_EQ(view->image(), nullptr);
  EXPECT_EQ(changes, 2);
}

TEST_F(UIImageViewTest, TellsEachOtherChangeOnce) {
  for (int time = 0; time < 2; ++time) {
    view->setContentMode(UIViewContentMode::center);
    view->setTintColor(UIColor::blackColor());
    view->setBorder({UIColor::blackColor(), 2});
    view->setClipsToBounds(true);
  }
  EXPECT_EQ(changes, 4);
  EXPECT_EQ(view->contentMode(), UIViewContentMode::center);
  EXPECT_EQ(view->tintColor(), UIColor::blackColor());
  EXPECT_EQ(view->border(), (UIViewBorder{UIColor::blackColor(), 2}));
  EXPECT_TRUE(view->clipsToBounds());
}

TEST_F(UIImageViewTest, FillsItsBoundsUnlessToldToFit) {
  EXPECT_EQ(view->contentMode(), UIViewContentMode::scaleAspectFill);
  view->setContentMode(UIViewContentMode::scaleAspectFit);
  view->setContentMode(UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(view->contentMode(), UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(changes, 1);
}

TEST_F(UIImageViewTest, HasNoTintOfItsOwnUnlessToldSo) {
  EXPECT_EQ(view->ownTintColor(), std::nullopt);
  view->setTintColor(UIColor::yellowColor());
  view->setTintColor(UIColor::yellowColor());
  EXPECT_EQ(view->tintColor(), UIColor::yellowColor());
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
