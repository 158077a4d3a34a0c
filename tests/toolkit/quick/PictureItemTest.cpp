// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/PictureItem.h"

#include "platform/fakes/FakeServices.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// Three stripes side by side, red, green and blue, each 10 pixels wide.
UIImageRef stripes() {
  std::vector<Rgba8> pixels;
  for (int y = 0; y < 10; ++y) {
    for (const Rgba8 color : {kRed, kGreen, kBlue}) pixels.insert(pixels.end(), 10, color);
  }
  return UIImage::imageWithRaster(Raster(30, 10, pixels));
}

// The same, one below another.
UIImageRef layers() {
  std::vector<Rgba8> pixels;
  for (const Rgba8 color : {kRed, kGreen, kBlue}) pixels.insert(pixels.end(), 100, color);
  return UIImage::imageWithRaster(Raster(10, 30, pixels));
}

class PictureItemTest : public QuickFixture {
 protected:
  void show(const UIImageRef& image) { item->setImage({image}); }

  const FakeServices fakes = installFakeServices();
  const std::unique_ptr<PictureItem> item = place<PictureItem>({20, 20, 40, 40});
};

TEST_F(PictureItemTest, DrawsNothingAtTheStart) { EXPECT_EQ(pixel(40, 40), QColor(Qt::white)); }

TEST_F(PictureItemTest, FillsJustItsOwnPlace) {
  show(plainPicture(8, 8, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(59, 59), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(19, 40), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(60, 40), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(40, 19), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(40, 60), QColor(Qt::white));
}

TEST_F(PictureItemTest, CutsTheSidesOfAWidePicture) {
  show(stripes());
  const QImage image = drawn();
  for (const int x : {23, 40, 56}) EXPECT_EQ(image.pixelColor(x, 40), QColor(0, 255, 0)) << x;
}

TEST_F(PictureItemTest, CutsTopAndBottomOfATallPicture) {
  show(layers());
  const QImage image = drawn();
  for (const int y : {23, 40, 56}) EXPECT_EQ(image.pixelColor(40, y), QColor(0, 255, 0)) << y;
}

TEST_F(PictureItemTest, ShowsAllOfAPictureOfItsOwnShape) {
  item->setSize({60, 20});
  show(stripes());
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(25, 30), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(50, 30), QColor(0, 255, 0));
  EXPECT_EQ(image.pixelColor(75, 30), QColor(Qt::blue));
}

TEST_F(PictureItemTest, APictureOfItsSizeIsDrawnPixelByPixel) {
  std::vector<Rgba8> pixels;
  for (int i = 0; i < 1600; ++i) pixels.push_back(i % 2 == 0 ? kRed : kBlue);
  show(UIImage::imageWithRaster(Raster(40, 40, pixels)));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(21, 20), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(58, 59), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(59, 59), QColor(Qt::blue));
}

TEST_F(PictureItemTest, WithoutAPictureItShowsItsGround) {
  item->setGround(Qt::darkCyan);
  EXPECT_EQ(pixel(20, 20), QColor(Qt::darkCyan));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::darkCyan));
}

TEST_F(PictureItemTest, ThePictureCoversTheGround) {
  item->setGround(Qt::darkCyan);
  show(plainPicture(8, 8, kRed));
  EXPECT_EQ(pixel(20, 20), QColor(Qt::red));
}

TEST_F(PictureItemTest, ThePictureGoesAgain) {
  show(plainPicture(8, 8, kRed));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::red));
  show(nullptr);
  EXPECT_EQ(pixel(40, 40), QColor(Qt::white));
}

TEST_F(PictureItemTest, AnotherPictureTakesItsPlace) {
  show(plainPicture(8, 8, kRed));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::red));
  show(plainPicture(8, 8, kBlue));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::blue));
}

TEST_F(PictureItemTest, RoundedCornersAreTransparent) {
  item->setRadius(20);
  show(plainPicture(8, 8, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(21, 21), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(58, 58), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(40, 21), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::red));
}

TEST_F(PictureItemTest, TheGroundIsRoundedLikeThePicture) {
  item->setRadius(20);
  item->setGround(Qt::darkCyan);
  EXPECT_EQ(pixel(21, 21), QColor(Qt::white));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::darkCyan));
}

TEST_F(PictureItemTest, ARadiusBeyondHalfItsSideMakesACircle) {
  item->setRadius(500);
  show(plainPicture(8, 8, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(24, 24), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(28, 28), QColor(Qt::red));
}

TEST_F(PictureItemTest, ARoundedPictureStaysInTheMiddle) {
  item->setRadius(5);
  show(stripes());
  const QImage image = drawn();
  for (const int x : {23, 40, 56}) EXPECT_EQ(image.pixelColor(x, 40), QColor(0, 255, 0)) << x;
}

TEST_F(PictureItemTest, ATintColoursWhatIsOpaque) {
  item->setTint(Qt::darkMagenta);
  show(plainPicture(8, 8, kRed));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::darkMagenta));
}

TEST_F(PictureItemTest, ATintLeavesWhatIsTransparent) {
  item->setTint(Qt::darkMagenta);
  show(plainPicture(8, 8, {}));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::white));
}

TEST_F(PictureItemTest, FollowsItsSize) {
  show(plainPicture(8, 8, kRed));
  EXPECT_EQ(pixel(70, 40), QColor(Qt::white));
  item->setSize({60, 40});
  EXPECT_EQ(pixel(70, 40), QColor(Qt::red));
}

TEST_F(PictureItemTest, WithoutASizeItDrawsNothing) {
  show(plainPicture(8, 8, kRed));
  item->setSize({0, 40});
  EXPECT_EQ(pixel(20, 40), QColor(Qt::white));
  item->setSize({40, 40});
  EXPECT_EQ(pixel(20, 40), QColor(Qt::red));
}

TEST_F(PictureItemTest, ShowsAResourceByItsName) {
  fakes.bundle->setImage("plus", plainPicture(8, 8, kBlue));
  item->setImageName(QStringLiteral("plus"));
  EXPECT_EQ(item->image().image, fakes.bundle->imageNamed("plus"));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::blue));
}

TEST_F(PictureItemTest, AMissingResourceShowsTheGround) {
  fakes.bundle->setMissing("plus");
  item->setGround(Qt::darkCyan);
  item->setImageName(QStringLiteral("plus"));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::darkCyan));
}

TEST_F(PictureItemTest, TellsEveryChangeOnce) {
  int changes = 0;
  const auto count = [&changes] { ++changes; };
  QObject::connect(item.get(), &PictureItem::imageChanged, count);
  QObject::connect(item.get(), &PictureItem::tintChanged, count);
  QObject::connect(item.get(), &PictureItem::groundChanged, count);
  QObject::connect(item.get(), &PictureItem::radiusChanged, count);
  const UIImageRef image = plainPicture(8, 8, kRed);
  for (int i = 0; i < 2; ++i) {
    show(image);
    item->setTint(Qt::red);
    item->setGround(Qt::blue);
    item->setRadius(3);
  }
  EXPECT_EQ(changes, 4);
}

TEST_F(PictureItemTest, TellsANewNameOnceAndThePictureWithIt) {
  int names = 0;
  int images = 0;
  QObject::connect(item.get(), &PictureItem::imageNameChanged, [&names] { ++names; });
  QObject::connect(item.get(), &PictureItem::imageChanged, [&images] { ++images; });
  item->setImageName(QStringLiteral("plus"));
  item->setImageName(QStringLiteral("plus"));
  EXPECT_EQ(names, 1);
  EXPECT_EQ(images, 1);
}

// --- Fitting ---

TEST_F(PictureItemTest, FillsUnlessToldToFit) {
  EXPECT_FALSE(item->fits());
  show(plainPicture(8, 4, kRed));
  EXPECT_EQ(pixel(40, 22), QColor(Qt::red));
}

TEST_F(PictureItemTest, FitsAWidePictureAcross) {
  item->setFits(true);
  show(plainPicture(8, 4, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(21, 40), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(58, 40), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(40, 25), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(40, 55), QColor(Qt::white));
}

TEST_F(PictureItemTest, FitsAHighPictureDown) {
  item->setFits(true);
  show(plainPicture(4, 8, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(40, 21), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(40, 58), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(25, 40), QColor(Qt::white));
}

TEST_F(PictureItemTest, APictureThatFitsKeepsItsRoundedFrameClear) {
  item->setFits(true);
  item->setRadius(10);
  show(plainPicture(8, 4, kRed));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(40, 25), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::red));
}

TEST_F(PictureItemTest, APictureThatFitsAndIsTintedIsTintedAlone) {
  item->setFits(true);
  item->setTint(Qt::darkMagenta);
  show(plainPicture(8, 4, kRed));
  EXPECT_EQ(pixel(40, 40), QColor(Qt::darkMagenta));
  EXPECT_EQ(pixel(40, 25), QColor(Qt::white));
}

TEST_F(PictureItemTest, TellsOnceThatItFits) {
  int changes = 0;
  QObject::connect(item.get(), &PictureItem::fitsChanged, [&changes] { ++changes; });
  item->setFits(true);
  item->setFits(true);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
