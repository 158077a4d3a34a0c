// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtResourceBundle.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>
#include <string>

namespace kindora {
namespace {

class QtResourceBundleTest : public ::testing::Test {
 protected:
  void write(const std::string& name, const std::string& content) {
    QFile file(folder.filePath(QString::fromStdString(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(QByteArray::fromStdString(content)), static_cast<qint64>(content.size()));
  }
  void writeSvg(const std::string& name, const std::string& attributes,
                const std::string& content = "") {
    write(name + ".svg",
          "<?xml version=\"1.0\"?><!-- a drawing -->"
          "<svg xmlns=\"http://www.w3.org/2000/svg\" " +
              attributes + ">" + content + "</svg>");
  }

  QTemporaryDir folder;
  QtResourceBundle bundle{folder.path()};
};

bool isNear(Rgba8 a, Rgba8 b) {
  return std::abs(a.red - b.red) <= 1 && std::abs(a.green - b.green) <= 1 &&
         std::abs(a.blue - b.blue) <= 1 && std::abs(a.alpha - b.alpha) <= 1;
}

TEST(QtResourceBundle, FindsTheDrawingsThatShipWithTheApp) {
  QtResourceBundle shipped;
  const UIImageRef leaf = shipped.imageNamed("leaf");
  ASSERT_NE(leaf, nullptr);
  EXPECT_EQ(leaf->size(), (CGSize{320, 160}));
  EXPECT_EQ(leaf->scale(), 2);
  EXPECT_EQ(leaf->raster().width(), 640u);
  EXPECT_EQ(leaf->raster().height(), 320u);
  EXPECT_EQ(leaf->raster().pixel(320, 160), (Rgba8{0, 128, 0, 255}));
  EXPECT_EQ(leaf->raster().pixel(0, 0), Rgba8{});
}

TEST_F(QtResourceBundleTest, SizeInPointsIsHalfTheViewBoxAtScaleTwo) {
  writeSvg("a", "viewBox=\"0 0 640 320\"");
  EXPECT_EQ(bundle.imageNamed("a")->size(), (CGSize{320, 160}));
  EXPECT_EQ(bundle.imageNamed("a")->scale(), 2);
}

TEST_F(QtResourceBundleTest, ViewBoxCountsRatherThanWidthAndHeight) {
  writeSvg("a", "width=\"10\" height=\"10\" viewBox=\"-5,-5, 48 , 24\"");
  EXPECT_EQ(bundle.imageNamed("a")->size(), (CGSize{24, 12}));
}

TEST_F(QtResourceBundleTest, TheSameNameGivesTheSameObject) {
  writeSvg("a", "viewBox=\"0 0 2 2\"");
  writeSvg("b", "viewBox=\"0 0 2 2\"");
  EXPECT_EQ(bundle.imageNamed("a"), bundle.imageNamed("a"));
  EXPECT_NE(bundle.imageNamed("a"), bundle.imageNamed("b"));
}

TEST_F(QtResourceBundleTest, MissingNamesGiveNoneAndPrintNothing) {
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  QtResourceBundle shipped;
  for (const char* name : {"missing", "", "..", "../images/leaf2", "leaf.svg", "é"}) {
    EXPECT_EQ(shipped.imageNamed(name), nullptr) << name;
    EXPECT_EQ(bundle.imageNamed(name), nullptr) << name;
  }
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(QtResourceBundleTest, AFileThatIsNoDrawingWithAViewBoxIsMissing) {
  write("empty.svg", "");
  write("text.svg", "no drawing");
  write("other.svg", "<html viewBox=\"0 0 2 2\"/>");
  writeSvg("boxless", "width=\"2\" height=\"2\"");
  writeSvg("short", "viewBox=\"0 0 2\"");
  writeSvg("flat", "viewBox=\"0 0 2 0\"");
  writeSvg("words", "viewBox=\"a b c d\"");
  for (const char* name : {"empty", "text", "other", "boxless", "short", "flat", "words"}) {
    EXPECT_EQ(bundle.imageNamed(name), nullptr) << name;
  }
}

// Left half opaque red, right half blue at half opacity.
constexpr const char* kHalves =
    "<rect width=\"2\" height=\"2\" fill=\"#ff0000\"/>"
    "<rect x=\"2\" width=\"2\" height=\"2\" fill=\"#0000ff\" fill-opacity=\"0.5\"/>";

TEST_F(QtResourceBundleTest, OwnPixelsArePremultiplied) {
  writeSvg("a", "viewBox=\"0 0 4 2\"", kHalves);
  const Raster& raster = bundle.imageNamed("a")->raster();
  ASSERT_EQ(raster.width(), 4u);
  ASSERT_EQ(raster.height(), 2u);
  EXPECT_EQ(raster.pixel(0, 0), (Rgba8{255, 0, 0, 255}));
  EXPECT_TRUE(isNear(raster.pixel(3, 1), {0, 0, 128, 128}));
}

TEST_F(QtResourceBundleTest, DrawsAnewAtAnyNumberOfPixels) {
  writeSvg("a", "viewBox=\"0 0 4 2\"", kHalves);
  const Raster raster = bundle.imageNamed("a")->rendered(1001, 300);
  ASSERT_EQ(raster.width(), 1001u);
  ASSERT_EQ(raster.height(), 300u);
  // Drawn, not enlarged: the border between the halves is one pixel wide.
  EXPECT_EQ(raster.pixel(499, 150), (Rgba8{255, 0, 0, 255}));
  EXPECT_TRUE(isNear(raster.pixel(501, 150), {0, 0, 128, 128}));
}

TEST_F(QtResourceBundleTest, StretchesToTheShapeAskedFor) {
  writeSvg("a", "viewBox=\"0 0 4 2\"", kHalves);
  const Raster raster = bundle.imageNamed("a")->rendered(10, 100);
  EXPECT_EQ(raster.pixel(0, 0), (Rgba8{255, 0, 0, 255}));
  EXPECT_EQ(raster.pixel(4, 99), (Rgba8{255, 0, 0, 255}));
  EXPECT_TRUE(isNear(raster.pixel(9, 99), {0, 0, 128, 128}));
}

}  // namespace
}  // namespace kindora
