// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ImageViewItem.h"

#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

class ImageViewItemTest : public QuickFixture {
 protected:
  ImageViewItemTest() {
    item->setOutlet(QStringLiteral("picture"));
    item->setOwner(&owner);
  }

  Owner owner;
  const std::shared_ptr<UIImageView> view = owner.make<UIImageView>("picture");
  const std::unique_ptr<ImageViewItem> item = place<ImageViewItem>({0, 0, 50, 50});
};

TEST_F(ImageViewItemTest, APhotoHasNoTint) {
  view->setTintColor(UIColor::blackColor());
  view->setImage(plainPicture(2, 2, kRed));
  EXPECT_FALSE(item->imageTint().isValid());
}

TEST_F(ImageViewItemTest, ATemplateIsDrawnInTheViewsTint) {
  view->setTintColor({1, 0, 0, 1});
  view->setImage(
      plainPicture(2, 2, kBlue)->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate));
  EXPECT_EQ(item->imageTint(), QColor(Qt::red));
}

TEST_F(ImageViewItemTest, OffersBorderAndContentMode) {
  EXPECT_TRUE(item->fills());
  EXPECT_EQ(item->borderWidth(), 0);
  view->setContentMode(UIViewContentMode::center);
  view->setBorder({{0, 0, 1, 1}, 2});
  EXPECT_FALSE(item->fills());
  EXPECT_EQ(item->borderWidth(), 2);
  EXPECT_EQ(item->borderColor(), QColor(Qt::blue));
}

}  // namespace
}  // namespace kindora
