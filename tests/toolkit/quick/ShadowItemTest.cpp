// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ShadowItem.h"

#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// The shadow of a square of 40 pixels.
class ShadowItemTest : public QuickFixture {
 protected:
  // How dark it is there, 0 to 255.
  int darkness(int x, int y) { return 255 - pixel(x, y).red(); }

  const std::unique_ptr<ShadowItem> item = place<ShadowItem>({30, 30, 40, 40});
};

TEST_F(ShadowItemTest, IsBlackInTheMiddle) { EXPECT_EQ(pixel(50, 50), QColor(Qt::black)); }

TEST_F(ShadowItemTest, IsHalfAsDarkAtTheEdge) {
  EXPECT_NEAR(darkness(30, 50), 128, 16);
  EXPECT_NEAR(darkness(69, 50), 128, 16);
}

TEST_F(ShadowItemTest, FadesWithinItsBlur) {
  const int inside = darkness(34, 50);
  const int outside = darkness(26, 50);
  EXPECT_GT(inside, 128);
  EXPECT_LT(inside, 255);
  EXPECT_GT(outside, 0);
  EXPECT_LT(outside, 128);
}

TEST_F(ShadowItemTest, EndsWhereItsBlurEnds) {
  EXPECT_EQ(pixel(20, 50), QColor(Qt::white));
  EXPECT_EQ(pixel(50, 79), QColor(Qt::white));
}

TEST_F(ShadowItemTest, IsTheSameOnEverySide) {
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(26, 50), image.pixelColor(73, 49));
  EXPECT_EQ(image.pixelColor(50, 26), image.pixelColor(49, 73));
  EXPECT_EQ(image.pixelColor(26, 50), image.pixelColor(50, 26));
}

TEST_F(ShadowItemTest, AWiderBlurReachesFarther) {
  item->setBlur(20);
  EXPECT_GT(darkness(15, 50), 0);
}

TEST_F(ShadowItemTest, RoundedCornersAreLighter) {
  const int square = darkness(32, 32);
  item->setRadius(20);
  EXPECT_LT(darkness(32, 32), square / 2);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::black));
}

TEST_F(ShadowItemTest, ARadiusBeyondHalfItsSideMakesACircle) {
  item->setRadius(20);
  const QImage circle = drawn();
  item->setRadius(500);
  EXPECT_EQ(drawn(), circle);
}

TEST_F(ShadowItemTest, ItsOpacityLightensIt) {
  item->setOpacity(0.5);
  EXPECT_NEAR(darkness(50, 50), 128, 2);
}

TEST_F(ShadowItemTest, WithoutBlurOrSizeItDrawsNothing) {
  item->setBlur(0);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
  item->setBlur(8);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::black));
  item->setSize({0, 40});
  EXPECT_EQ(pixel(30, 50), QColor(Qt::white));
}

TEST_F(ShadowItemTest, FollowsItsSize) {
  EXPECT_EQ(pixel(85, 50), QColor(Qt::white));
  item->setSize({60, 40});
  EXPECT_GT(darkness(85, 50), 128);
}

TEST_F(ShadowItemTest, TellsEveryChangeOnce) {
  int changes = 0;
  QObject::connect(item.get(), &ShadowItem::radiusChanged, [&changes] { ++changes; });
  QObject::connect(item.get(), &ShadowItem::blurChanged, [&changes] { ++changes; });
  for (int i = 0; i < 2; ++i) {
    item->setRadius(5);
    item->setBlur(4);
  }
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace kindora
