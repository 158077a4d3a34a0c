// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/SquareCrop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kindora {
namespace {

constexpr CGSize kWide{800, 400};
constexpr CGSize kTall{400, 800};

void expectRect(const CGRect& rect, double x, double y, double width, double height) {
  EXPECT_NEAR(rect.origin.x, x, 1e-9);
  EXPECT_NEAR(rect.origin.y, y, 1e-9);
  EXPECT_NEAR(rect.size.width, width, 1e-9);
  EXPECT_NEAR(rect.size.height, height, 1e-9);
}

TEST(SquareCrop, BeginsCentredAndJustCovering) {
  const SquareCrop crop(kWide, 200);
  EXPECT_EQ(crop.zoom(), 1);
  expectRect(crop.pictureFrame(), -100, 0, 400, 200);
  expectRect(crop.cropRect(), 200, 0, 400, 400);
}

TEST(SquareCrop, ATallPictureStandsOutAboveAndBelow) {
  const SquareCrop crop(kTall, 200);
  expectRect(crop.pictureFrame(), 0, -100, 200, 400);
  expectRect(crop.cropRect(), 0, 200, 400, 400);
}

TEST(SquareCrop, ThePictureFollowsTheFinger) {
  SquareCrop crop(kWide, 200);
  crop.pan({50, 0});
  expectRect(crop.pictureFrame(), -50, 0, 400, 200);
  expectRect(crop.cropRect(), 100, 0, 400, 400);
}

TEST(SquareCrop, ThePictureStopsAtItsEdges) {
  SquareCrop crop(kWide, 200);
  crop.pan({1000, 1000});
  expectRect(crop.pictureFrame(), 0, 0, 400, 200);
  crop.pan({-5000, -5000});
  expectRect(crop.pictureFrame(), -200, 0, 400, 200);
  expectRect(crop.cropRect(), 400, 0, 400, 400);
}

TEST(SquareCrop, ZoomsAboutTheMiddle) {
  SquareCrop crop(kWide, 200);
  crop.zoomBy(2, {100, 100});
  EXPECT_EQ(crop.zoom(), 2);
  expectRect(crop.cropRect(), 300, 100, 200, 200);
}

TEST(SquareCrop, WhatIsUnderTheFingersStaysThere) {
  SquareCrop crop(kWide, 200);
  const CGPoint about{30, 40};
  const auto pixelUnder = [&] {
    const CGRect frame = crop.pictureFrame();
    const double scale = frame.size.width / kWide.width;
    return CGPoint{(about.x - frame.origin.x) / scale, (about.y - frame.origin.y) / scale};
  };
  const CGPoint before = pixelUnder();
  crop.zoomBy(1.7, about);
  EXPECT_NEAR(pixelUnder().x, before.x, 1e-9);
  EXPECT_NEAR(pixelUnder().y, before.y, 1e-9);
}

TEST(SquareCrop, ZoomsNoFurtherThanItsLimits) {
  SquareCrop crop(kWide, 200);
  crop.zoomBy(1000, {100, 100});
  EXPECT_EQ(crop.zoom(), SquareCrop::kMaximumZoom);
  crop.zoomBy(0.0001, {100, 100});
  EXPECT_EQ(crop.zoom(), 1);
}

TEST(SquareCrop, ZoomingOutAtAnEdgeStillCovers) {
  SquareCrop crop(kWide, 200);
  crop.zoomBy(4, {100, 100});
  crop.pan({5000, 5000});
  crop.zoomBy(0.25, {200, 200});
  expectRect(crop.pictureFrame(), 0, 0, 400, 200);
}

TEST(SquareCrop, AnotherSideShowsTheSamePart) {
  SquareCrop crop(kWide, 200);
  crop.zoomBy(2, {100, 100});
  crop.pan({20, 10});
  const CGRect before = crop.cropRect();
  crop.setSide(350);
  EXPECT_EQ(crop.cropRect(), before);
  EXPECT_NEAR(crop.pictureFrame().size.height, 700, 1e-9);
}

TEST(SquareCrop, APictureOfOnePixelIsCutWhole) {
  const SquareCrop crop({1, 1}, 300);
  expectRect(crop.cropRect(), 0, 0, 1, 1);
}

TEST(SquareCrop, AThinPictureIsCutWithinItsWidth) {
  SquareCrop crop({3, 1200}, 300);
  crop.zoomBy(5, {0, 0});
  const CGRect cut = crop.cropRect();
  EXPECT_EQ(cut.size, (CGSize{1, 1}));
}

// Whatever the user does, the cut lies inside the picture and the picture covers the square.
TEST(SquareCrop, AlwaysCoversWhateverIsDone) {
  for (const CGSize picture : {CGSize{1200, 799}, CGSize{333, 1200}, CGSize{7, 7}}) {
    SquareCrop crop(picture, 358);
    for (int step = 0; step < 400; ++step) {
      crop.pan({97.0 * std::sin(step), 53.0 * std::cos(3 * step)});
      crop.zoomBy(std::exp(std::sin(5 * step)), {11.0 * (step % 32), 7.0 * (step % 50)});
      const CGRect frame = crop.pictureFrame();
      ASSERT_LE(frame.origin.x, 1e-6);
      ASSERT_LE(frame.origin.y, 1e-6);
      ASSERT_GE(frame.origin.x + frame.size.width, 358 - 1e-6);
      ASSERT_GE(frame.origin.y + frame.size.height, 358 - 1e-6);
      const CGRect cut = crop.cropRect();
      ASSERT_GE(cut.origin.x, 0);
      ASSERT_GE(cut.origin.y, 0);
      ASSERT_LE(cut.origin.x + cut.size.width, picture.width);
      ASSERT_LE(cut.origin.y + cut.size.height, picture.height);
      ASSERT_EQ(cut.size.width, cut.size.height);
    }
  }
}

}  // namespace
}  // namespace kindora
