// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/PageCurlItem.h"

#include <algorithm>

#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

const QColor kPage(0, 0, 255);

// A blue page over a white window.
class PageCurlItemTest : public QuickFixture {
 protected:
  void lay(double part, double radius = 0) { item->show(page, radius, part); }
  // The page's colour, perhaps in shade.
  static bool isPage(const QColor& color) {
    return color.blue() > 100 && color.red() == 0 && color.green() == 0;
  }
  [[nodiscard]] int laidPixels() {
    const QImage image = drawn();
    int count = 0;
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 100; ++x) count += isPage(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
  }

  const UIImageRef page = plainPicture(4, 4, kBlue);
  const std::unique_ptr<PageCurlItem> item = place<PageCurlItem>({0, 0, 100, 100});
};

TEST_F(PageCurlItemTest, APageOfWhichNothingIsLaidHidesNothing) {
  const QImage before = drawn();
  lay(0);
  EXPECT_EQ(drawn(), before);
}

TEST_F(PageCurlItemTest, IsLaidFromTheTopLeftToTheBottomRight) {
  lay(0.5);
  const QImage image = drawn();
  EXPECT_TRUE(isPage(image.pixelColor(3, 3)));
  EXPECT_EQ(image.pixelColor(96, 96), QColor(Qt::white));
}

TEST_F(PageCurlItemTest, ThePartThatIsNotLaidYetIsBentBack) {
  lay(0.5);
  // Near the fold the back shows, which is light and not the page's colour.
  const QColor back = pixel(50, 42);
  EXPECT_GT(back.red(), 90);
  EXPECT_GT(back.green(), 90);
}

TEST_F(PageCurlItemTest, TheFoldCastsAShadeOnWhatLiesBelow) {
  lay(0.5);
  const QImage image = drawn();
  int darkest = 255;
  for (int y = 40; y < 100; ++y) {
    const QColor color = image.pixelColor(50, y);
    if (color.red() == color.blue()) darkest = std::min(darkest, color.red());
  }
  EXPECT_LT(darkest, 220);
}

TEST_F(PageCurlItemTest, MoreAndMoreIsLaid) {
  int before = -1;
  for (const double part : {0.4, 0.5, 0.6, 0.8, 0.95}) {
    lay(part);
    const int now = laidPixels();
    EXPECT_GT(now, before) << part;
    before = now;
  }
}

TEST_F(PageCurlItemTest, APageThatIsLaidShowsAllOfThePicture) {
  lay(1);
  QImage all(100, 100, QImage::Format_RGB32);
  all.fill(kPage);
  EXPECT_EQ(drawn().convertToFormat(QImage::Format_RGB32), all);
}

TEST_F(PageCurlItemTest, HasRoundedCorners) {
  lay(1, 30);
  EXPECT_EQ(pixel(2, 2), QColor(Qt::white));
  EXPECT_EQ(pixel(50, 50), kPage);
}

TEST_F(PageCurlItemTest, ShowsAnotherPicture) {
  lay(0.9);
  EXPECT_EQ(pixel(10, 10), kPage);
  item->show(plainPicture(4, 4, kRed), 0, 0.9);
  EXPECT_EQ(pixel(10, 10), QColor(255, 0, 0));
}

TEST_F(PageCurlItemTest, ShowsAPictureThatFillsIt) {
  item->show(plainPicture(8, 2, kRed), 0, 0.9);
  EXPECT_EQ(pixel(10, 10), QColor(255, 0, 0));
}

TEST_F(PageCurlItemTest, FollowsItsSize) {
  lay(1);
  item->setSize({50, 50});
  EXPECT_EQ(pixel(25, 25), kPage);
  EXPECT_EQ(pixel(75, 75), QColor(Qt::white));
}

TEST_F(PageCurlItemTest, WithoutAPictureThePageIsBlank) {
  item->show(nullptr, 0, 0.9);
  EXPECT_NE(pixel(10, 10), QColor(Qt::white));
}

TEST_F(PageCurlItemTest, WithoutASizeItDrawsNothing) {
  item->setSize({0, 0});
  lay(0.5);
  EXPECT_EQ(pixel(10, 10), QColor(Qt::white));
}

TEST_F(PageCurlItemTest, ASpringBeyondItsEndsIsNoHarm) {
  lay(1.2);
  EXPECT_EQ(pixel(50, 50), kPage);
  lay(-0.2);
  EXPECT_EQ(pixel(95, 95), QColor(Qt::white));
}

}  // namespace
}  // namespace kindora
