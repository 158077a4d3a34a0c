// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/PictureDecoder.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <cstdlib>

namespace kindora {
namespace {

constexpr int kSide = 1200;

// 16 x 16 pixels of red ink, in four colours.
constexpr const char* kFourColours =
    "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwAQCwwODAoQDg0OEhEQExgoGhgWFhgxIyUdKDozPTw5Mzg3QEhcTkBEV0U3"
    "OFBtUVdfYmdoZz5NcXlwZHhcZWdj/9sAQwEREhIYFRgvGhovY0I4QmNjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2Nj"
    "Y2NjY2NjY2NjY2NjY2NjY2NjY2NjY2Nj/8AAFAgAEAAQBAERAAIRAQMRAQQRAP/EABYAAQEBAAAAAAAAAAAAAAAA"
    "AAAFB//EABQQAQAAAAAAAAAAAAAAAAAAAAD/xAAWAQEBAQAAAAAAAAAAAAAAAAAABQb/xAAUEQEAAAAAAAAAAAAA"
    "AAAAAAAA/9oADgQBAAIRAxEEAAA/ALSowbQAAAAH/9k=";

class PictureDecoderTest : public ::testing::Test {
 protected:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  static QByteArray encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 95));
    return buffer.data();
  }
  // Left half red, right half blue.
  static QImage halves(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < height; ++y) {
      for (int x = width / 2; x < width; ++x) image.setPixelColor(x, y, Qt::blue);
    }
    return image;
  }
  // The picture with a camera's word on how it was held, 1 to 8.
  static QByteArray held(QByteArray jpeg, char orientation) {
    // Little-endian, one entry: tag 0x0112, a short, once.
    QByteArray segment = QByteArray::fromHex(
        "ffe10022457869660000"
        "49492a0008000000"
        "0100"
        "1201030001000000");
    segment.append(orientation);
    segment.append(
        QByteArray::fromHex("000000"
                            "00000000"));
    return jpeg.insert(2, segment);
  }
  static bool isRed(Rgba8 pixel) { return pixel.red > 200 && pixel.blue < 60; }
  static bool isBlue(Rgba8 pixel) { return pixel.blue > 200 && pixel.red < 60; }
  // A PNG file that claims that size and holds no more than its head.
  static QByteArray headOfPng(quint32 width, quint32 height) {
    QByteArray png = encoded(halves(2, 2), "png");
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    return png;
  }

  QTemporaryDir folder;
};

TEST_F(PictureDecoderTest, ReadsPngPixelForPixel) {
  const auto raster = decodePicture(write("a.png", encoded(halves(4, 2), "png")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_EQ(raster->width(), 4U);
  EXPECT_EQ(raster->height(), 2U);
  EXPECT_EQ(raster->pixel(0, 0), (Rgba8{255, 0, 0, 255}));
  EXPECT_EQ(raster->pixel(3, 1), (Rgba8{0, 0, 255, 255}));
}

TEST_F(PictureDecoderTest, ReadsJpeg) {
  const auto raster = decodePicture(write("a.jpg", encoded(halves(64, 32), "jpg")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_EQ(raster->width(), 64U);
  EXPECT_TRUE(isRed(raster->pixel(8, 16)));
  EXPECT_TRUE(isBlue(raster->pixel(56, 16)));
}

TEST_F(PictureDecoderTest, KeepsTransparencyPremultiplied) {
  QImage image(1, 1, QImage::Format_ARGB32);
  image.fill(QColor(255, 0, 0, 128));
  const auto raster = decodePicture(write("a.png", encoded(image, "png")), kSide);
  EXPECT_EQ(raster->pixel(0, 0), (Rgba8{128, 0, 0, 128}));
}

TEST_F(PictureDecoderTest, ThePicturesContentCountsAndNotItsName) {
  EXPECT_TRUE(decodePicture(write("really-a.png", encoded(halves(8, 8), "jpg")), kSide));
  EXPECT_TRUE(decodePicture(write("really-a.jpg", encoded(halves(8, 8), "png")), kSide));
  EXPECT_TRUE(decodePicture(write("no ending", encoded(halves(8, 8), "png")), kSide));
}

TEST_F(PictureDecoderTest, AnythingElseIsNone) {
  EXPECT_FALSE(decodePicture(write("a.jpg", "no picture at all"), kSide));
  EXPECT_FALSE(decodePicture(write("empty.png", ""), kSide));
  EXPECT_FALSE(decodePicture(write("a.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>"), kSide));
  EXPECT_FALSE(decodePicture(write("svg.png", "<svg xmlns='http://www.w3.org/2000/svg'/>"), kSide));
  EXPECT_FALSE(decodePicture(write("a.bmp", encoded(halves(8, 8), "bmp")), kSide));
  EXPECT_FALSE(decodePicture(folder.filePath("missing.png"), kSide));
  EXPECT_FALSE(decodePicture(folder.path(), kSide));
}

TEST_F(PictureDecoderTest, ADamagedPictureIsNoneWhereverItIsCut) {
  for (const char* format : {"jpg", "png"}) {
    const QByteArray whole = encoded(halves(64, 64), format);
    for (qsizetype length = 0; length < whole.size() - 12; length += 7) {
      EXPECT_FALSE(decodePicture(write("cut", whole.left(length)), kSide)) << format << length;
    }
  }
}

TEST_F(PictureDecoderTest, APipeIsNotWaitedFor) {
  const QString pipe = folder.filePath("pipe.png");
  ASSERT_EQ(std::system(("mkfifo " + pipe.toStdString()).c_str()), 0);
  EXPECT_FALSE(decodePicture(pipe, kSide));
}

// --- Size ---

TEST_F(PictureDecoderTest, ShrinksTheLongerSideAndKeepsTheShape) {
  const auto png = decodePicture(write("a.png", encoded(halves(2400, 800), "png")), kSide);
  EXPECT_EQ(png->width(), 1200U);
  EXPECT_EQ(png->height(), 400U);
  const auto jpeg = decodePicture(write("a.jpg", encoded(halves(1000, 3000), "jpg")), kSide);
  EXPECT_EQ(jpeg->width(), 400U);
  EXPECT_EQ(jpeg->height(), 1200U);
}

TEST_F(PictureDecoderTest, NeverEnlarges) {
  EXPECT_EQ(decodePicture(write("a.png", encoded(halves(1200, 3), "png")), kSide)->width(), 1200U);
  EXPECT_EQ(decodePicture(write("b.png", encoded(halves(3, 3), "png")), kSide)->width(), 3U);
}

TEST_F(PictureDecoderTest, AThreadOfAPictureKeepsAPixel) {
  const auto raster = decodePicture(write("a.png", encoded(halves(9000, 1), "png")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_EQ(raster->width(), 1200U);
  EXPECT_EQ(raster->height(), 1U);
}

TEST_F(PictureDecoderTest, ShrinkingAveragesAndDoesNotPick) {
  for (const char* format : {"png", "jpg"}) {
    QImage stripes(4800, 16, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
      for (int y = 0; y < 16; ++y) stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::white : Qt::black);
    }
    const auto raster = decodePicture(write("stripes", encoded(stripes, format)), kSide);
    ASSERT_TRUE(raster);
    EXPECT_NEAR(raster->pixel(600, 2).red, 127, 12) << format;
  }
}

TEST_F(PictureDecoderTest, TheMostPixelsAreRead) {
  QImage image(8192, 8192, QImage::Format_Grayscale8);
  image.fill(200);
  const auto raster = decodePicture(write("a.png", encoded(image, "png")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_EQ(raster->width(), 1200U);
  EXPECT_EQ(raster->pixel(5, 5), (Rgba8{200, 200, 200, 255}));
}

TEST_F(PictureDecoderTest, MorePixelsAreNone) {
  QImage image(8193, 8192, QImage::Format_Grayscale8);
  image.fill(200);
  EXPECT_FALSE(decodePicture(write("a.png", encoded(image, "png")), kSide));
}

TEST_F(PictureDecoderTest, AClaimOfHugeSidesIsNone) {
  EXPECT_FALSE(decodePicture(write("a.png", headOfPng(2147483647, 2147483647)), kSide));
  EXPECT_FALSE(decodePicture(write("b.png", headOfPng(1000000, 1000000)), kSide));
  EXPECT_FALSE(decodePicture(write("c.png", headOfPng(0, 5)), kSide));
}

// --- How it was held, and colours ---

TEST_F(PictureDecoderTest, StandsUprightHoweverTheCameraWasHeld) {
  const QByteArray jpeg = encoded(halves(64, 32), "jpg");
  struct Case {
    char orientation;
    bool turned;    // onto its side
    bool redFirst;  // red is left, or above when turned
  };
  for (const Case& each :
       {Case{1, false, true}, Case{2, false, false}, Case{3, false, false}, Case{4, false, true},
        Case{5, true, true}, Case{6, true, true}, Case{7, true, false}, Case{8, true, false}}) {
    const auto raster = decodePicture(write("held.jpg", held(jpeg, each.orientation)), kSide);
    ASSERT_TRUE(raster) << int{each.orientation};
    EXPECT_EQ(raster->width(), each.turned ? 32U : 64U) << int{each.orientation};
    EXPECT_EQ(raster->height(), each.turned ? 64U : 32U) << int{each.orientation};
    EXPECT_EQ(isRed(raster->pixel(4, 4)), each.redFirst) << int{each.orientation};
  }
}

TEST_F(PictureDecoderTest, ALargePictureIsTurnedAndShrunk) {
  const QByteArray jpeg = encoded(halves(3000, 1000), "jpg");
  const auto raster = decodePicture(write("held.jpg", held(jpeg, 6)), kSide);
  ASSERT_TRUE(raster);
  EXPECT_EQ(raster->width(), 400U);
  EXPECT_EQ(raster->height(), 1200U);
  EXPECT_TRUE(isRed(raster->pixel(200, 100)));
}

TEST_F(PictureDecoderTest, AWideColourSpaceIsBroughtToSRgb) {
  QImage image(1, 1, QImage::Format_RGB32);
  image.fill(QColor(200, 100, 100));
  image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
  const auto raster = decodePicture(write("a.png", encoded(image, "png")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_GT(raster->pixel(0, 0).red, 210);
}

TEST_F(PictureDecoderTest, ReadsGreyAndFourColourJpegs) {
  QImage grey(16, 16, QImage::Format_Grayscale8);
  grey.fill(100);
  const auto plain = decodePicture(write("grey.jpg", encoded(grey, "jpg")), kSide);
  ASSERT_TRUE(plain);
  EXPECT_NEAR(plain->pixel(3, 3).red, 100, 2);
  const auto ink = decodePicture(write("ink.jpg", QByteArray::fromBase64(kFourColours)), kSide);
  ASSERT_TRUE(ink);
  EXPECT_TRUE(isRed(ink->pixel(3, 3)));
}

TEST_F(PictureDecoderTest, ReadsSixteenBitsAChannel) {
  QImage image(2, 2, QImage::Format_RGBA64);
  image.fill(QColor::fromRgba64(0xFFFF, 0x8080, 0));
  const auto raster = decodePicture(write("deep.png", encoded(image, "png")), kSide);
  ASSERT_TRUE(raster);
  EXPECT_NEAR(raster->pixel(0, 0).green, 0x80, 1);
}

}  // namespace
}  // namespace kindora
