// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PressedLook.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kindora {
namespace {

TEST(PressedLook, APressedPictureIsDarkerByAQuarter) {
  const std::vector<Rgba8> pixels(1, Rgba8{200, 100, 40, 255});
  const UIImageRef picture = UIImage::imageWithRaster(Raster(1, 1, pixels));
  EXPECT_EQ(pressedPicture(picture, true)->raster().pixel(0, 0), (Rgba8{150, 75, 30, 255}));
  EXPECT_EQ(pressedPicture(picture, false), picture);
}

TEST(PressedLook, WithoutAPictureThereIsNothingToDarken) {
  EXPECT_EQ(pressedPicture(nullptr, true), nullptr);
}

TEST(PressedLook, APressedFrameSinksAndItsShadowFades) {
  const auto frame = std::make_shared<UIView>();
  sinkFrame(*frame, true);
  EXPECT_EQ(frame->state().shadowOpacity, 0.25);
  EXPECT_EQ(frame->state().translation, (CGPoint{0, 2.5}));
  sinkFrame(*frame, false);
  EXPECT_EQ(frame->state().shadowOpacity, 0.5);
  EXPECT_EQ(frame->state().translation, (CGPoint{0, 0}));
}

}  // namespace
}  // namespace kindora
