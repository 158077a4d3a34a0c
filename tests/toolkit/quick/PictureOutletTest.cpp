// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/quick/OutletFixture.h"
#include "toolkit/quick/PictureItem.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

class PictureOutletTest : public OutletFixture {
 protected:
  [[nodiscard]] const PictureItem& picture() const { return *qobject_cast<PictureItem*>(inner); }

  const std::shared_ptr<UIImageView> view = owner.make<UIImageView>("picture");
};

TEST_F(PictureOutletTest, ShowsThePictureAsTheControllerWantsIt) {
  view->setImage(plainPicture(10, 10, kRed));
  view->setContentMode(UIViewContentMode::scaleAspectFit);
  view->setCornerRadius(7);
  draw("PictureOutlet", QStringLiteral("picture"), "width: 100; height: 100; radius: 3");
  EXPECT_EQ(picture().image().image, view->image());
  EXPECT_TRUE(picture().fits());
  EXPECT_EQ(picture().radius(), 7);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(PictureOutletTest, HasThePagesCornersAndGroundWhereTheControllerHasNone) {
  draw("PictureOutlet", QStringLiteral("picture"),
       "width: 100; height: 100; radius: 20; ground: '#ff0000'");
  EXPECT_EQ(picture().radius(), 20);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
  EXPECT_EQ(pixel(1, 1), QColor(Qt::white));
}

}  // namespace
}  // namespace kindora
